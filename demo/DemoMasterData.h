#pragma once

#include <QDate>
#include <QStringList>

namespace kuyum {

class Database;

/// What every company of the trade holds, whatever its size: currencies and
/// rates, karats, colours, product types, statuses, label types, settings,
/// menu and users; and the stones and molds that its models are made of.

struct DemoType
{
    const char16_t *name;
    const char16_t *shortName;
    double leastWeight; ///< of the wax model, in grams
    double mostWeight;
};
constexpr int demoTypeCount = 8;
/// The product types in the order of their numbers: the first has TipID 1.
const DemoType &demoType(int index);

QStringList demoColours();
QList<int> demoKarats();

struct DemoMaterials
{
    int stones = 0;        ///< TasID 1 to stones
    QStringList moldCodes; ///< KalipID 1, 2, 3 ...
};

void fillSettings(Database &company);
void fillRates(Database &company);
void fillUsers(Database &company);
void fillLabelTypes(Database &company);
DemoMaterials fillMaterials(Database &company, int scale);

} // namespace kuyum
