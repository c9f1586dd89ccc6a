#include "Demo.h"

#include "Database.h"
#include "DemoCustomers.h"
#include "DemoMasterData.h"
#include "DemoModels.h"
#include "DemoOrders.h"
#include "DemoPictures.h"
#include "DemoRow.h"
#include "Schema.h"

#include <QDir>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

using Progress = std::function<void(const QString &)>;

[[noreturn]] void refuse(const QString &reason)
{
    throw std::runtime_error(reason.toStdString());
}

/// The folder in which the company grows until it is whole.
class BuildingSite
{
public:
    explicit BuildingSite(const QString &folder)
        : m_finished(QDir(folder).filePath(u"database"_s)), m_path(m_finished + u".part"_s)
    {
        if (QFileInfo::exists(m_finished))
            refuse(u"Bu klasörde zaten bir veri tabanı var: "_s + m_finished);
        // What is cleared away is a folder that an earlier run left, not where a
        // link leads.
        if (QFileInfo(m_path).isSymLink())
            refuse(u"Bu kısayolun yerine klasör açılamaz: "_s + m_path);
        clear();
        if (!QDir().mkpath(m_path + u"/resim/KLP"_s) || !QDir().mkpath(m_path + u"/transfer"_s))
            refuse(u"Klasör açılamıyor: "_s + m_path);
    }
    ~BuildingSite() { clear(); }
    BuildingSite(const BuildingSite &) = delete;
    BuildingSite &operator=(const BuildingSite &) = delete;

    QString path(const QString &name) const { return QDir(m_path).filePath(name); }

    void finish()
    {
        if (!QDir().rename(m_path, m_finished))
            refuse(u"Veri tabanı yerine konulamadı: "_s + m_finished);
    }

private:
    void clear() { QDir(m_path).removeRecursively(); }

    QString m_finished;
    QString m_path;
};

void makeRegistry(const QString &path)
{
    const std::unique_ptr<Database> registry = createRegistry(path);
    Recordset companies = registry->table(u"SirketKayit"_s);
    addRow(companies, {{u"turkod", u"048"_s},
                       {u"Srkkod", 1},
                       {u"Srkadi", u"Işıltı Kuyumculuk (Örnek Şirket)"_s},
                       {u"DataYolu", uR"(c:\database\atolye.kuyum)"_s},
                       {u"ResimYolu", uR"(c:\database\resim)"_s},
                       {u"Transferyolu", uR"(c:\database\transfer)"_s}});
}

struct Company
{
    QList<DemoModel> models;
    DemoMaterials materials;
};

Company makeCompany(const QString &path, int scale, const Progress &progress)
{
    const std::unique_ptr<Database> db = createCompany(path);
    Transaction transaction(*db);
    fillSettings(*db);
    fillRates(*db);
    fillUsers(*db);
    fillLabelTypes(*db);
    const int customers = fillCustomers(*db, scale);
    progress(u"Müşteriler: %1"_s.arg(customers));

    Company company;
    company.materials = fillMaterials(*db, scale);
    progress(u"Taşlar: %1, kalıplar: %2"_s.arg(company.materials.stones)
                 .arg(company.materials.moldCodes.size()));
    company.models = fillModels(*db, scale, company.materials);
    fillCatalogues(*db, scale, company.models);
    progress(u"Modeller: %1"_s.arg(company.models.size()));
    fillOrders(*db, {.orders = demoOrderCount(scale), .customers = customers}, company.models,
               [&](int done, int all) { progress(u"Siparişler: %1 / %2"_s.arg(done).arg(all)); });
    transaction.commit();
    return company;
}

} // namespace

QDate demoDay()
{
    return {2026, 11, 20};
}

void makeDemo(const QString &folder, int scale, const Progress &progress)
{
    BuildingSite site(folder);
    const Company company = makeCompany(site.path(u"atolye.kuyum"_s), scale, progress);
    drawPictures(site.path(u"resim"_s), company.models, company.materials.moldCodes,
                 [&](int done, int all) { progress(u"Resimler: %1 / %2"_s.arg(done).arg(all)); });
    makeRegistry(site.path(u"sirket.kuyum"_s));
    site.finish();
}

} // namespace kuyum
