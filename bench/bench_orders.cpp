// bench_orders [RUNS]: opening an order of 100 lines and saving one of 200, in a
// company of 2,000 orders. The baseline is the C interface of the engine, with
// prepared statements for the same rows.

#include "DocumentViewer.h"
#include "Giris_Siparis.h"
#include "Measured.h"
#include "Messages.h"
#include "Oturum.h"
#include "Schema.h"
#include "SiparisStore.h"
#include "SqliteEngine.h"
#include "SqliteFunctions.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <sqlite3.h>

using namespace Qt::StringLiterals;

using namespace kuyum;

namespace {

constexpr int typeCount = 8;
constexpr int modelCount = 300;
constexpr int orderCount = 2000;
constexpr int openedOrder = orderCount + 1; // 100 lines
constexpr int savedOrder = orderCount + 2;  // 200 lines

void fillMasterData(const SqliteEngine &engine)
{
    engine.run(u"INSERT INTO Firma (Firkod, FirAdi, KisaAD) VALUES (1, 'Kuyumculuk', 'KUY')"_s);
    for (int i = 0; i < 12; ++i)
        engine.run(u"INSERT INTO Renkler (RenkNo, Renksira) VALUES (?, ?)"_s, {u"R%1"_s.arg(i), i});
    for (int type = 1; type <= typeCount; ++type)
        engine.run(u"INSERT INTO UrunTipi (TipID, UrunTipi, KisaAD, Sirano) "
                   "VALUES (?, 'Tip', ?, ?)"_s,
                   {type, u"T%1"_s.arg(type), type});
    // Two product types and six materials to a model.
    for (int i = 0; i < modelCount * 6; ++i)
        engine.run(u"INSERT INTO Model (Model, M_Uruntip, M_Miktar, M_Tip, M_Kod, M_Adet) "
                   "VALUES (?, ?, 2.37, 0, 1, 1)"_s,
                   {u"A.%1"_s.arg(1000 + i / 6), (i / 6 + i % 2 * 3) % typeCount + 1});
}

/// An order of that many rows, each with a quantity for both its types.
void addOrder(const SqliteEngine &engine, int order, int rows)
{
    engine.run(u"INSERT INTO SiparisB (Sipnum, SipTrh, TesTrh, SipFirkod, Ayar, Patent, Aciklama) "
               "VALUES (?, '2012-03-01', '2012-04-01', 1, 585, 'TR585', 'Acele')"_s,
               {order});
    QSqlQuery insert = engine.prepare(
        u"INSERT INTO SiparisD (SipnumD, SipSatir, SipModel, SipUruntip, Siprenk, SipAck, "
        "SipAdet, Drm1, Drm2, Trhbas, Trhbit) VALUES (?, ?, ?, ?, ?, ?, 3, '', '', "
        "'2000-01-01', '2000-01-01')"_s);
    for (int i = 0; i < rows * 2; ++i) {
        const int model = (order + i / 2 * 7) % modelCount;
        engine.run(insert, {order, i / 2 + 1, u"A.%1"_s.arg(1000 + model),
                            (model + i % 2 * 3) % typeCount + 1, u"R%1"_s.arg(i / 2 % 12),
                            i % 8 == 0 ? u"ölçü 14"_s : u""_s});
    }
}

/// The engine's C interface on the same file.
class Raw
{
public:
    explicit Raw(const QString &path)
    {
        sqlite3_open(path.toUtf8().constData(), &m_db);
        registerSqliteFunctions(m_db);
        run("PRAGMA journal_mode = DELETE; PRAGMA synchronous = FULL");
    }
    ~Raw() { sqlite3_close(m_db); }
    Raw(const Raw &) = delete;
    Raw &operator=(const Raw &) = delete;

    void run(const char *sql) { sqlite3_exec(m_db, sql, nullptr, nullptr, nullptr); }

    void open(int order)
    {
        read("SELECT * FROM SiparisB, Firma WHERE SipFirkod = Firkod AND Sipnum = ?", order);
        read("SELECT * FROM UrunTipi ORDER BY Sirano", 0);
        const QList<QByteArray> models =
            read("SELECT SipModel, * FROM SiparisD, UrunTipi, Renkler WHERE SipUruntip = TipID "
                 "AND Siprenk = RenkNo AND SipnumD = ? "
                 "ORDER BY SipSatir, SipModel, Renksira, SipAck",
                 order);
        sqlite3_stmt *types = prepare("SELECT UrunTipi.KisaAD FROM Model, UrunTipi "
                                      "WHERE M_Uruntip = TipID AND Model = ? "
                                      "GROUP BY UrunTipi.KisaAD ORDER BY UrunTipi.KisaAD");
        for (const QByteArray &model : models) {
            sqlite3_bind_text(types, 1, model.constData(), int(model.size()), SQLITE_STATIC);
            while (sqlite3_step(types) == SQLITE_ROW)
                sqlite3_column_text(types, 0);
            sqlite3_reset(types);
        }
        sqlite3_finalize(types);
    }

    void save(const Siparis &order)
    {
        run("UPDATE SiparisB SET TesTrh = '2012-04-01', SipFirkod = 1, Ayar = 585, "
            "Patent = 'TR585', Aciklama = 'Acele' WHERE Sipnum = 2002");
        run("BEGIN IMMEDIATE");
        run("DELETE FROM SiparisD WHERE SipnumD = 2002");
        sqlite3_stmt *insert =
            prepare("INSERT INTO SiparisD (SipSatir, SipnumD, SipModel, Siprenk, SipAck, Drm1, "
                    "Drm2, Trhbas, Trhbit, SipAdet, SipUruntip) "
                    "VALUES (?, 2002, ?, ?, ?, '', '', '2000-01-01', '2000-01-01', ?, ?)");
        for (qsizetype i = 0; i < order.satirlar.size(); ++i) {
            for (qsizetype j = 0; j < order.tipler.size(); ++j) {
                if (order.satirlar[i].adetler[j] != 0)
                    add(insert, int(i + 1), order.satirlar[i], int(j), order.tipler[j].TipID);
            }
        }
        sqlite3_finalize(insert);
        run("COMMIT");
    }

private:
    sqlite3_stmt *prepare(const char *sql)
    {
        sqlite3_stmt *statement = nullptr;
        sqlite3_prepare_v2(m_db, sql, -1, &statement, nullptr);
        return statement;
    }

    /// Reads all columns of all rows; gives the first column's different texts.
    QList<QByteArray> read(const char *sql, int order)
    {
        sqlite3_stmt *statement = prepare(sql);
        if (order != 0)
            sqlite3_bind_int(statement, 1, order);
        QList<QByteArray> first;
        while (sqlite3_step(statement) == SQLITE_ROW) {
            for (int i = 0; i < sqlite3_column_count(statement); ++i)
                sqlite3_column_text(statement, i);
            const QByteArray text(
                reinterpret_cast<const char *>(sqlite3_column_text(statement, 0)));
            if (first.isEmpty() || first.last() != text)
                first.append(text);
        }
        sqlite3_finalize(statement);
        return first;
    }

    static void add(sqlite3_stmt *insert, int number, const SiparisSatiri &row, int column,
                    int type)
    {
        sqlite3_bind_int(insert, 1, number);
        int place = 2;
        for (const QString &text : {row.model, row.renk, row.aciklama}) {
            sqlite3_bind_text16(insert, place++, text.utf16(), int(text.size() * 2),
                                SQLITE_TRANSIENT);
        }
        sqlite3_bind_int(insert, 5, row.adetler[column]);
        sqlite3_bind_int(insert, 6, type);
        sqlite3_step(insert);
        sqlite3_reset(insert);
    }

    sqlite3 *m_db = nullptr;
};

/// No question stands in the way of a measurement.
class NoMessages : public Messages
{
public:
    MessageAnswer show(QWidget *, const Message &) override { return MessageAnswer::Yes; }
    std::optional<QString> input(QWidget *, const QString &, const QString &,
                                 const QString &) override
    {
        return std::nullopt;
    }
    ChangeAnswer choose(QWidget *, const ChangedMeanwhile &) override { return ChangeAnswer::Back; }
};

class NoViewer : public DocumentViewer
{
public:
    void show(QWidget *, const PrintDocument &) override {}
};

/// From Enter on the order's number to its grid on the screen.
void openOnScreen(Giris_Siparis &screen)
{
    auto *number = screen.findChild<QLineEdit *>(u"Sipnum"_s);
    number->setText(QString::number(openedOrder));
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(number, &enter);
    screen.repaint();
}

void measureScreen(Oturum &oturum, int runs)
{
    NoMessages messages;
    NoViewer viewer;
    const auto noList = [](QWidget *, const LookupRequest &) { return LookupAnswer(); };
    const QTemporaryDir settingsFolder;
    QSettings settings(settingsFolder.filePath(u"ayarlar.ini"_s), QSettings::IniFormat);
    Giris_Siparis screen({oturum, messages, noList, viewer}, settings, OrderReports{});
    screen.show();
    auto *clear = screen.findChild<QPushButton *>(u"cmdvazgec"_s);
    const double opening = middleMilliseconds(
        runs, [&] { openOnScreen(screen); },
        [&] {
            clear->click();
            screen.repaint();
            QCoreApplication::processEvents();
        });
    printMeasured(u"open 100 lines on the screen, painted"_s, opening);
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const int runs = argc > 1 ? qMax(1, atoi(argv[1])) : 31;
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"olcum.kuyum"_s);
    Oturum oturum;
    oturum.Veritabani = createCompany(path);
    oturum.CalismaTarihi = QDate(2012, 3, 1);
    {
        Transaction transaction(*oturum.Veritabani);
        const SqliteEngine &engine = oturum.Veritabani->engine();
        fillMasterData(engine);
        for (int order = 1; order <= orderCount; ++order)
            addOrder(engine, order, 5);
        addOrder(engine, openedOrder, 50);
        addOrder(engine, savedOrder, 100);
        transaction.commit();
    }
    const SiparisStore store(oturum);
    Siparis order = store.SiparisBul(savedOrder).value();
    Raw raw(path);

    const double rawOpen = middleMilliseconds(runs, [&] { raw.open(openedOrder); });
    const double open = middleMilliseconds(runs, [&] { store.SiparisBul(openedOrder); });
    const double rawSave = middleMilliseconds(runs, [&] { raw.save(order); });
    const double save = middleMilliseconds(runs, [&] {
        LoadedRows loaded = store.oku(order.Sipnum);
        store.save(order, loaded);
    });

    printMeasured(u"baseline: read the rows of an order of 100 lines"_s, rawOpen);
    printRatio(u"open 100 lines"_s, open, rawOpen);
    measureScreen(oturum, runs);
    printMeasured(u"baseline: write the rows of an order of 200 lines"_s, rawSave);
    printRatio(u"save 200 lines"_s, save, rawSave);
    return 0;
}
