#pragma once

#include <QList>
#include <QString>

namespace kuyum {

class Database;
struct DemoMaterials;

struct DemoModel
{
    QString code;
    QList<int> types;   ///< TipID; the first is the one its picture shows
    double weight = 0;  ///< in the first type
    qint64 firstId = 0; ///< Model_ID of its first row
};

/// The models with their bills of materials.
QList<DemoModel> fillModels(Database &company, int scale, const DemoMaterials &materials);
void fillCatalogues(Database &company, int scale, const QList<DemoModel> &models);

} // namespace kuyum
