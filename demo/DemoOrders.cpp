#include "DemoOrders.h"

#include "Database.h"
#include "Dates.h"
#include "Demo.h"
#include "DemoMasterData.h"
#include "DemoModels.h"
#include "DemoRow.h"
#include "Dice.h"

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

constexpr int ordersPerScale = 400;
constexpr int daysOfAYear = 365;
constexpr int linesOfTheLongOrder = 120;

/// How far the workshop has come with an order.
struct Tracking
{
    QString order;
    QString stage;
    QDate start = noDate();
    QDate end = noDate();
};

QString orderNote(Dice &dice)
{
    const QStringList notes = {u"Standart teslim"_s,       u"Acele, bayramdan önce hazır olacak"_s,
                               u"Fiyat görüşülecek"_s,     u"Müşteri'nin kendi kutusuyla teslim"_s,
                               u"Rodajsız, parlak cila"_s, u"Numune gibi olacak"_s,
                               u"Fuar siparişi"_s,         u"Vitrin için, etiketsiz"_s};
    QString note = dice.oneOf(notes);
    if (dice.chance(8)) {
        note += u"; yüzük ölçüleri ayrıca bildirilecek, taşlar aynı tondan seçilecek, her parça "
                u"ayrı poşete konup üzerine model numarası yazılacak"_s;
    }
    return note;
}

QString lineNote(Dice &dice)
{
    if (!dice.chance(35))
        return {};
    const QStringList notes = {u"ölçü 14"_s,     u"ölçü 16"_s,      u"boy 45 cm"_s,
                               u"kilit kalın"_s, u"mıhlama sıkı"_s, u"taşlar mat"_s,
                               u"rodaj çift"_s,  u"parlak cila"_s,  u"iç yazı: 'Daima'"_s};
    QString note = dice.oneOf(notes);
    if (dice.chance(10))
        note += u", ağır olmasın, arkası ajurlu ve içi düz, çift kutuda teslim edilecek"_s;
    return note;
}

QString hallmark(Dice &dice, int karat)
{
    const QStringList patterns = {u"%1"_s, u"TR %1"_s, u"IŞL %1"_s};
    return dice.oneOf(patterns).arg(karat);
}

class OrderWriter
{
public:
    OrderWriter(Database &company, const DemoOrderPlan &plan, const QList<DemoModel> &models)
        : m_headers(company.table(u"SiparisB"_s)),
          m_lines(company.table(u"SiparisD"_s)),
          m_plan(plan),
          m_models(models)
    {
    }

    void write(int place)
    {
        m_ordered = orderDate(place);
        m_delivery = m_ordered.addDays(m_dice.between(14, 35));
        const qint64 number = writeHeader();
        // One order in a hundred was called off, with all its lines.
        const bool cancelled = m_dice.chance(1);
        const int rows =
            place % ordersPerScale == 250 ? linesOfTheLongOrder : m_dice.between(2, 13);
        for (int row = 1; row <= rows; ++row) {
            Tracking tracking = track();
            if (cancelled)
                tracking.order = u"İPTAL"_s;
            writeRow(number, row, tracking);
        }
    }

private:
    /// The orders are spread evenly over the years; on Sundays the shop is shut.
    QDate orderDate(int place) const
    {
        const int days = daysOfAYear * m_plan.years;
        const QDate day = demoDay().addDays(int(qint64(place + 1) * days / m_plan.orders) - days);
        return day.dayOfWeek() == Qt::Sunday ? day.addDays(-1) : day;
    }

    qint64 writeHeader()
    {
        // Most of it is 14 karat.
        const int karat = m_dice.chance(55) ? 585 : m_dice.oneOf(m_karats);
        addRow(m_headers, {{u"SipTrh", m_ordered},
                           {u"TesTrh", m_delivery},
                           {u"SipFirkod", m_dice.between(1, m_plan.customers)},
                           {u"Ayar", karat},
                           {u"Patent", hallmark(m_dice, karat)},
                           {u"Aciklama", orderNote(m_dice)}});
        return m_headers.integer(u"Sipnum");
    }

    /// Delivered, at work, or just taken in: as the date of the order says.
    Tracking track()
    {
        const QStringList stages = {u"MUM"_s,     u"DÖKÜM"_s, u"TESVİYE"_s,
                                    u"MIHLAMA"_s, u"CİLA"_s,  u"KALİTE KONTROL"_s};
        Tracking tracking;
        if (m_delivery < demoDay()) {
            tracking.order = u"TESLİM EDİLDİ"_s;
            tracking.stage = stages.last();
            tracking.start = m_ordered.addDays(m_dice.between(1, 4));
            tracking.end = m_delivery.addDays(-m_dice.between(0, 5));
        } else if (m_ordered.addDays(5) < demoDay()) {
            tracking.stage = m_dice.oneOf(stages);
            tracking.start = m_ordered.addDays(m_dice.between(1, 4));
            const bool ready = tracking.stage == stages.last();
            tracking.order = ready ? u"HAZIR"_s : u"ÜRETİMDE"_s;
            if (ready)
                tracking.end = demoDay().addDays(-m_dice.below(2));
        } else if (m_dice.chance(60)) {
            tracking.order = m_dice.chance(50) ? u"SİPARİŞ ALINDI"_s : u"ONAYLANDI"_s;
        }
        return tracking;
    }

    /// A row of the order's grid: a stored line for each product type ordered.
    void writeRow(qint64 number, int row, const Tracking &tracking)
    {
        // The lower of two throws: some models sell better than others.
        const int count = int(m_models.size());
        const DemoModel &model = m_models[std::min(m_dice.below(count), m_dice.below(count))];
        const QString &colour = m_dice.oneOf(m_colours);
        const QString note = lineNote(m_dice);
        const int surelyOrdered = m_dice.oneOf(model.types);
        for (const int type : model.types) {
            if (type != surelyOrdered && !m_dice.chance(60))
                continue;
            const int pieces = m_dice.chance(10) ? m_dice.between(20, 60) : m_dice.between(1, 12);
            addRow(m_lines, {{u"SipnumD", number},
                             {u"SipSatir", row},
                             {u"SipModel", model.code},
                             {u"SipUruntip", type},
                             {u"Siprenk", colour},
                             {u"SipAck", note},
                             {u"SipAdet", pieces},
                             {u"Drm1", tracking.order},
                             {u"Drm2", tracking.stage},
                             {u"Trhbas", tracking.start},
                             {u"Trhbit", tracking.end}});
        }
    }

    Recordset m_headers;
    Recordset m_lines;
    DemoOrderPlan m_plan;
    const QList<DemoModel> &m_models;
    const QStringList m_colours = demoColours();
    const QList<int> m_karats = demoKarats();
    Dice m_dice{51};
    QDate m_ordered;
    QDate m_delivery;
};

} // namespace

int demoOrderCount(int scale)
{
    return ordersPerScale * scale;
}

void fillOrders(Database &company, const DemoOrderPlan &plan, const QList<DemoModel> &models,
                const std::function<void(int done, int all)> &progress)
{
    OrderWriter writer(company, plan, models);
    for (int place = 0; place < plan.orders; ++place) {
        writer.write(place);
        if ((place + 1) % (plan.orders / 4) == 0)
            progress(place + 1, plan.orders);
    }
}

} // namespace kuyum
