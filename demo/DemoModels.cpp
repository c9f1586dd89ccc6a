#include "DemoModels.h"

#include "Database.h"
#include "DemoMasterData.h"
#include "DemoRow.h"
#include "Dice.h"

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

/// Names are spelt as a workshop spells them over the years: with a hyphen, a
/// blank, a point or nothing before the number.
QString modelCode(Dice &dice, int number)
{
    const QStringList names = {u"LALE"_s,   u"GÜL"_s,   u"PAPATYA"_s, u"ŞELALE"_s, u"ÇINAR"_s,
                               u"Yağmur"_s, u"Ilgın"_s, u"IŞIK"_s,    u"İNCİ"_s,   u"Sarmaşık"_s,
                               u"DAMLA"_s,  u"ÖRGÜ"_s,  u"Kelebek"_s, u"TUĞRA"_s,  u"KAŞ"_s,
                               u"A"_s,      u"B"_s,     u"K"_s,       u"Y"_s,      u"KLB"_s};
    const QStringList joints = {u"-"_s, u" "_s, u"."_s, {}};
    const QString &name = dice.oneOf(names);
    const QString &joint = dice.oneOf(joints);
    return name + joint + QString::number(number);
}

/// Most models are of one product type; of the rest there is a ring with its
/// earrings and necklace.
QList<int> modelTypes(Dice &dice)
{
    const int main = dice.below(demoTypeCount);
    QList<int> types = {main + 1};
    const int more = dice.chance(24) ? 1 : dice.chance(10) ? 2 : 0;
    while (types.size() < more + 1) {
        const int another = dice.between(1, demoTypeCount);
        if (!types.contains(another))
            types.append(another);
    }
    return types;
}

class ModelWriter
{
public:
    ModelWriter(Database &company, const DemoMaterials &materials)
        : m_rows(company.table(u"Model"_s)), m_materials(materials)
    {
    }

    DemoModel write(int number)
    {
        DemoModel model;
        model.code = modelCode(m_dice, number);
        model.types = modelTypes(m_dice);
        for (const int type : std::as_const(model.types)) {
            const DemoType &kind = demoType(type - 1);
            const double weight = m_dice.decimal(kind.leastWeight, kind.mostWeight, 2);
            const qint64 id = writeType(model.code, type, weight);
            if (model.firstId == 0) {
                model.firstId = id;
                model.weight = weight;
            }
        }
        return model;
    }

private:
    /// One row per component, or one without a component. Returns the number
    /// of the first row.
    qint64 writeType(const QString &code, int type, double weight)
    {
        const int components = m_dice.chance(12) ? 0 : m_dice.between(1, 6);
        qint64 first = 0;
        for (int i = 0; i < std::max(components, 1); ++i) {
            const bool stone = components > 0 && m_dice.chance(65);
            const int count = int(stone ? m_materials.stones : m_materials.moldCodes.size());
            const int pieces = stone ? m_dice.between(1, 24) : m_dice.between(1, 4);
            addRow(m_rows, {{u"Model", code},
                            {u"M_Uruntip", type},
                            {u"M_Miktar", weight},
                            {u"M_Tip", components == 0 || stone ? 0 : 1},
                            {u"M_Kod", components == 0 ? 0 : m_dice.between(1, count)},
                            {u"M_Adet", components == 0 ? 0 : pieces}});
            if (first == 0)
                first = m_rows.integer(u"Model_ID");
        }
        return first;
    }

    Recordset m_rows;
    const DemoMaterials &m_materials;
    Dice m_dice{41};
};

} // namespace

QList<DemoModel> fillModels(Database &company, int scale, const DemoMaterials &materials)
{
    ModelWriter writer(company, materials);
    QList<DemoModel> models;
    for (int i = 0; i < 300 * scale; ++i)
        models.append(writer.write(1001 + i));
    return models;
}

void fillCatalogues(Database &company, int scale, const QList<DemoModel> &models)
{
    const QStringList names = {u"İLKBAHAR KOLEKSİYONU"_s, u"DÜĞÜN VE NİŞAN"_s, u"ÇİÇEK SERİSİ"_s};
    const QStringList remarks = {{}, {}, u"Yeni"_s, u"Taşsız da olur"_s, u"İki renk yapılır"_s};
    Dice dice(42);
    Recordset rows = company.table(u"Katalog"_s);
    for (int volume = 1; volume <= scale; ++volume) {
        for (const QString &name : names) {
            const QString title = volume == 1 ? name : name + u" / %1"_s.arg(volume);
            for (int i = 0; i < 18; ++i) {
                const DemoModel &model = dice.oneOf(models);
                addRow(rows, {{u"KatAdi", title},
                              {u"katno1", model.firstId},
                              {u"katgram", model.weight},
                              {u"kataciklama", dice.oneOf(remarks)}});
            }
        }
    }
}

} // namespace kuyum
