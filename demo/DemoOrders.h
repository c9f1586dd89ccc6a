#pragma once

#include <functional>
#include <QList>

namespace kuyum {

class Database;
struct DemoModel;

struct DemoOrderPlan
{
    int orders = 0;
    int customers = 0; ///< whose codes run from 1
    int years = 1;     ///< up to the demo's day, over which the orders are spread
};

/// How many orders a demo company of that scale has.
int demoOrderCount(int scale);

/// The orders of the last years; tells how many are done.
void fillOrders(Database &company, const DemoOrderPlan &plan, const QList<DemoModel> &models,
                const std::function<void(int done, int all)> &progress);

} // namespace kuyum
