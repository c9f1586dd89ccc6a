#include "Dosya_Yenile.h"

#include "ChosenTables.h"
#include "DefinitionFixture.h"
#include "RaporGrid.h"
#include "Schema.h"
#include "TestRegistry.h"

#include <QListWidget>
#include <QStatusBar>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

/// The screen by its keys.
class Dosya_YenileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void opensWithTheCodeOnly();
    void refreshesTheTables();
    void oneTableFails_data();
    void oneTableFails();
    void makesAnEmptyDatabase();
    void tellsWhatCannotBeReached();
};

namespace {

/// Keeps what was said; answers questions as told beforehand.
struct KeptMessages : Messages
{
    MessageAnswer show(QWidget *, const Message &message) override
    {
        said.append(message.text);
        return message.buttons == MessageButtons::YesNo ? answer : MessageAnswer::Ok;
    }
    std::optional<QString> input(QWidget *, const QString &, const QString &,
                                 const QString &) override
    {
        return std::nullopt;
    }
    ChangeAnswer choose(QWidget *, const ChangedMeanwhile &) override { return ChangeAnswer::Back; }
    QStringList said;
    MessageAnswer answer = MessageAnswer::No;
};

struct Screen
{
    Screen()
    {
        oturum.Veritabani = makeSampleCompany(path(u"atolye.kuyum"_s));
        const std::unique_ptr<Database> db = Database::create(path(u"yeni.kuyum"_s));
        for (const TableDef &table : chosenTables())
            db->createTable(table);
        screen = std::make_unique<Dosya_Yenile>(ScreenContext{oturum, messages, {}, viewer});
        screen->setSourceChooser([this](auto...) { return path(source); });
        screen->setTargetChooser([this](auto...) { return path(target); });
        screen->show();
        QVERIFY(QTest::qWaitForWindowActive(screen.get()));
    }
    QString path(const QString &name) const { return dir.filePath(name); }
    void key(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) const
    {
        QTest::keyClick(screen->focusWidget(), key, held);
    }
    void enter(const QString &text = {}) const
    {
        typeText(screen->focusWidget(), text);
        key(Qt::Key_Return);
    }
    /// The code, and Enter on the button that chooses the file.
    void choose() const
    {
        enter(u"SILV7319"_s);
        enter();
    }
    QWidget *control(const QString &name) const { return screen->findChild<QWidget *>(name); }
    QString status() const { return screen->findChild<QStatusBar *>()->currentMessage(); }
    QStringList differences() const
    {
        QStringList lines;
        for (const ReportRow &row : screen->findChild<RaporGrid *>()->table().rows) {
            QStringList values;
            for (const QVariant &value : row.values)
                values.append(value.toString());
            lines.append(values.join(u'|'));
        }
        return lines;
    }

    QTemporaryDir dir;
    Oturum oturum;
    KeptMessages messages;
    KeptDocuments viewer;
    QString source = u"yeni.kuyum"_s;
    QString target = u"boş.kuyum"_s;
    std::unique_ptr<Dosya_Yenile> screen;
};

} // namespace

void Dosya_YenileTest::opensWithTheCodeOnly()
{
    const DefinitionFixture<Dosya_Yenile> letters; // two controls share none
    const Screen s;
    const auto open = [&] {
        QStringList names;
        for (const QString &name :
             {u"Sifre"_s, u"cmdGozat"_s, u"Yenile_Cmd"_s, u"Disket_Cmd"_s, u"Son_Cmd"_s}) {
            if (s.control(name)->isEnabled())
                names.append(name);
        }
        return names;
    };
    const QStringList locked = {u"Sifre"_s, u"Son_Cmd"_s};
    QCOMPARE(open(), locked);
    s.enter(u"silv7319"_s);
    s.enter(); // it stands marked: typing replaces it
    QCOMPARE(s.messages.said, QStringList(2, u"Sifre Hatali ....."_s));
    QCOMPARE(open(), locked);
    s.enter(u"SILV7319"_s);
    QCOMPARE(s.messages.said.size(), 2);
    QCOMPARE(open(), (QStringList{u"cmdGozat"_s, u"Disket_Cmd"_s, u"Son_Cmd"_s}));
    s.enter();
    QVERIFY(open().contains(u"Yenile_Cmd"_s));
    s.key(Qt::Key_Escape);
    QVERIFY(!s.screen->isVisible());
}

void Dosya_YenileTest::refreshesTheTables()
{
    const Screen s;
    s.choose();
    const auto *list = s.screen->findChild<QListWidget *>(u"Tablolar"_s);
    QCOMPARE(list->item(0)->text(), u"Tas-(ESKI)"_s);
    QCOMPARE(list->item(list->count() - 1)->text(), u"Depo-(YENI)"_s);
    QVERIFY(s.differences().contains(u"Tas|Taskodu|Text(20)|Text(40)|genişletilir"_s));
    QVERIFY(s.differences().contains(u"Tas|TasBirimi|Text(5)|Text(3)|olduğu gibi kalır"_s));
    QVERIFY(s.differences().contains(u"Depo||yok|3 alan|tablo açılır"_s));

    s.enter();
    QCOMPARE(s.messages.said.size(), 1);
    const QString said = s.messages.said.first();
    QVERIFY2(said.startsWith(u"ISLEM TAMAMLANDI...\n"_s), qPrintable(said));
    const QString copy = said.section(u'\n', -1);
    QVERIFY2(QFileInfo(copy).isFile(), qPrintable(copy));
    QVERIFY(s.oturum.Veritabani->hasTable(u"Depo"_s));
    // What is left is what could not be done.
    QCOMPARE(s.differences(), (QStringList{u"Tas|TasBirimi|Text(5)|Text(3)|olduğu gibi kalır"_s,
                                           u"Ayar|Yogunluk|Double|Single|olduğu gibi kalır"_s,
                                           u"Firma|Firkod|Long|Text(10)|olduğu gibi kalır"_s}));
    QCOMPARE(s.status(), u"ISLEM TAMAMLANDI..."_s);
}

void Dosya_YenileTest::oneTableFails_data()
{
    QTest::addColumn<bool>("goesOn");
    QTest::newRow("the rest") << true;
    QTest::newRow("none") << false;
}

void Dosya_YenileTest::oneTableFails()
{
    QFETCH(bool, goesOn);
    Screen s;
    s.oturum.Veritabani->engine().run(u"INSERT INTO Ayar VALUES (9007199254740993, 1)"_s);
    s.messages.answer = goesOn ? MessageAnswer::Yes : MessageAnswer::No;
    s.choose();
    s.enter();
    QCOMPARE(s.messages.said.size(), 2);
    QVERIFY(s.messages.said[0].startsWith(u"Ayar TABLOSU GÜNCELLENEMEDİ:\n"_s));
    QCOMPARE(s.oturum.Veritabani->hasTable(u"Depo"_s), goesOn);
    if (goesOn)
        QVERIFY(s.messages.said[1].contains(u"Ayar: güncellenemedi"_s));
    else
        QCOMPARE(s.messages.said[1], u"İşlem durduruldu, hiçbir şey değiştirilmedi."_s);
}

void Dosya_YenileTest::makesAnEmptyDatabase()
{
    const Screen s;
    s.enter(u"SILV7319"_s);
    s.key(Qt::Key_B, Qt::AltModifier);
    QTRY_COMPARE(s.messages.said, QStringList{u"ISLEM TAMAMLANDI..."_s});
    const std::unique_ptr<Database> made = openCompany(s.path(u"boş.kuyum"_s));
    QCOMPARE(made->tableNames(), s.oturum.Veritabani->tableNames());
    QCOMPARE(s.oturum.Veritabani->rowCount(u"Tas"_s), 2);
}

void Dosya_YenileTest::tellsWhatCannotBeReached()
{
    Screen s;
    s.choose();
    QVERIFY(QFile::remove(s.path(u"yeni.kuyum"_s)));
    s.enter();
    QCOMPARE(s.messages.said.takeLast(), u"14 NOLU HATA. LUTFEN YENILEME DISKETINI TAKIN..."_s);
    QVERIFY(s.status().startsWith(u"Dosya bulunamadı"_s));
    s.target = u"yok/boş.kuyum"_s;
    s.key(Qt::Key_B, Qt::AltModifier);
    QTRY_COMPARE(s.messages.said, QStringList{u"14 NOLU HATA. DOSYA YOLUNU KONTROL EDIN..."_s});
    s.messages.said.clear();
    s.target = u"atolye.kuyum"_s;
    s.key(Qt::Key_B, Qt::AltModifier);
    QTRY_COMPARE(s.messages.said.size(), 1);
    QVERIFY(s.messages.said[0].contains(u"çalışılan veri tabanının kendisi"_s));
    QCOMPARE(s.oturum.Veritabani->rowCount(u"Tas"_s), 2);
}

KUYUM_TEST(Dosya_YenileTest)

} // namespace kuyum

#include "Dosya_YenileTest.moc"
