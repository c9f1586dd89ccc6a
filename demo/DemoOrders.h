#pragma once

#include <functional>
#include <QList>

class Database;
struct DemoModel;

/// Orders of the last year; tells how many are done.
void fillOrders(Database &company, int scale, int customers, const QList<DemoModel> &models,
                const std::function<void(int done, int all)> &progress);
