#include "Parametreler.h"
#include "Backup.h"
#include "DatabaseOpening.h"
#include "Dates.h"
#include "KeptDocuments.h"
#include "Keyboard.h"
#include "Oturum.h"
#include "Printers.h"
#include "RaporGrid.h"
#include "Schema.h"
#include "ScreenContext.h"
#include "ScriptedMessages.h"
#include "SqliteEngine.h"
#include "TestCompanies.h"
#include "TestRegistry.h"

#include <QSettings>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

struct TwoPrinters : Printers
{
    using Printers::Printers;
    QStringList installed() const override { return {u"Lazer"_s, u"Zebra"_s}; }
};

/// The settings of the sample company, whose registry has other companies too.
struct Settings : Keyboard
{
    Settings()
    {
        oturum = companies.loggedIn(u"Admin"_s, 1, QDate(2012, 6, 1));
        oturum.SirketKodu = 1;
        oturum.DataYolu = u"c:\\database\\BIR.kuyum"_s;
        addRow(*oturum.Veritabani, u"XXX"_s,
               {{u"TeraziTip"_s, 2},
                {u"comportST"_s, u"9600,n,8,1"_s},
                {u"YaziciAdi"_s, u"Zebra TLP2844"_s},
                {u"sabitayar"_s, 585}});
    }
    void open()
    {
        const ScreenContext context{oturum, messages,
                                    [this](QWidget *, const LookupRequest &request) {
                                        asked.append(request.ListeTuru);
                                        return LookupAnswer();
                                    },
                                    viewer};
        const auto opener = [this](QWidget *parent, const QString &path) {
            return openTakenOver(parent, messages, path, openCompany);
        };
        screen = std::make_unique<Parametreler>(context, ParametreServices{opener, printers});
        screen->show();
        QVERIFY(QTest::qWaitForWindowActive(screen.get()));
    }
    template <typename Widget = QWidget>
    Widget *control(const QString &name) const
    {
        return screen->findChild<Widget *>(name);
    }
    QString text(const QString &name) const
    {
        const auto *list = control<QComboBox>(name);
        return list != nullptr ? list->currentText() : control<QLineEdit>(name)->text();
    }
    QString focus() const { return screen->focusWidget()->objectName(); }
    void fill(const QString &name, const QString &text) const
    {
        control(name)->setFocus(Qt::TabFocusReason);
        key(Qt::Key_A, Qt::ControlModifier);
        if (text.isEmpty())
            key(Qt::Key_Delete);
        type(text);
        QCOMPARE(this->text(name), text);
    }
    void press(Qt::Key letter, const QString &button) const
    {
        // A progress box, which a busy machine shows, leaves no window active.
        screen->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(screen.get()));
        const QSignalSpy clicks(control<QPushButton>(button), &QPushButton::clicked);
        key(letter, Qt::AltModifier);
        QTRY_COMPARE(clicks.count(), 1);
    }
    void save() const { press(Qt::Key_K, u"cmdKayit"_s); }
    QStringList codes(const QString &list) const
    {
        QStringList texts;
        for (int row = 0; row < control<QListWidget>(list)->count(); ++row)
            texts.append(control<QListWidget>(list)->item(row)->text());
        return texts;
    }

    /// The fields of the first row as "a|b|c".
    static QString row(Database &db, const QString &sql)
    {
        Recordset set = db.query(sql);
        if (!set.next())
            return u"none"_s;
        QStringList fields;
        for (int i = 0; i < set.fieldCount(); ++i)
            fields.append(set.value(i).toString());
        return fields.join(u'|');
    }
    QString XXX() const
    {
        return row(*oturum.Veritabani, u"Select TeraziTip, ComportID, comportST, YaziciAdi, "
                                       "sabitayar From XXX"_s);
    }
    QString registered() const
    {
        return row(*openRegistry(companies.registry()),
                   u"Select DataYolu, ResimYolu, Transferyolu From SirketKayit Where Srkkod = 1"_s);
    }

    TestCompanies companies;
    Oturum oturum;
    ScriptedMessages messages;
    KeptDocuments viewer;
    QStringList asked;
    QSettings settings{companies.path(u"kuyum.ini"_s), QSettings::IniFormat};
    TwoPrinters printers{settings};
    std::unique_ptr<Parametreler> screen;
};

const QString stored =
    u"c:\\database\\BIR.kuyum|C:\\DATABASE\\resimler|c:\\gelen"_s; // the registry's row, at first

} // namespace

class ParametrelerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fromTheStoredSettingsToTheSaved()
    {
        Settings on;
        QDir().mkpath(on.companies.path(u"Database/yeni resim"_s));
        on.open();
        QCOMPARE(on.focus(), u"YeniYol"_s);
        QCOMPARE(on.text(u"YeniYol"_s), u"c:\\database\\BIR.kuyum"_s);
        QCOMPARE(on.text(u"YaziciAdi"_s), u"Zebra TLP2844"_s); // which is not installed
        QCOMPARE(on.control<QComboBox>(u"YaziciAdi"_s)->count(), 2);
        const Database *before = on.oturum.Veritabani.get();

        // Enter goes from box to box; each is selected, so typing replaces it.
        on.enter(u"C:/Database/bir.kuyum"_s); // the same file in another spelling
        on.enter(u"c:\\database\\yeni resim"_s);
        on.enter();
        on.enter(u"Zeb"_s); // a free text, not completed
        on.messages.expect({.text = u"SAYISAL DEGER GIRIN..."_s, .icon = MessageIcon::Critical});
        on.enter(u"750a,5"_s);
        on.enter(u"7"_s);
        on.enter(u"3"_s);
        on.enter(u"19200,n,8,1"_s);
        QCOMPARE(on.focus(), u"cmdKayit"_s);
        on.enter();
        on.messages.verify();
        QCOMPARE(on.XXX(), u"7|3|19200,n,8,1|Zeb|750.5"_s);
        QCOMPARE(on.registered(), u"C:/Database/bir.kuyum|c:\\database\\yeni resim|c:\\gelen"_s);
        QCOMPARE(on.oturum.Veritabani.get(), before);
        QCOMPARE(on.oturum.DataYolu, u"C:/Database/bir.kuyum"_s);
        QCOMPARE(on.oturum.ResimYolu, on.companies.path(u"Database/yeni resim"_s));
        on.key(Qt::Key_Escape); // everything is saved: nothing is asked
        QVERIFY(!on.screen->isVisible());
    }

    void aWrongDatabaseChangesNothing_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("reason");
        QTest::newRow("missing") << u"c:\\database\\yok.kuyum"_s << u"Dosya bulunamadı: %1"_s;
        QTest::newRow("registry") << u"c:\\database\\sirket.kuyum"_s
                                  << u"Bu dosya bir şirketin veri tabanı değil: %1"_s;
        QTest::newRow("newer")
            << u"c:\\database\\ikinci.kuyum"_s
            << u"Bu dosya programın daha yeni bir sürümü ile yazılmış, açılamaz: "
               "%1"_s;
    }
    void aWrongDatabaseChangesNothing()
    {
        QFETCH(QString, path);
        QFETCH(QString, reason);
        Settings on;
        const QString file = on.companies.path(u"Database/"_s + path.section(u'\\', -1));
        if (path.contains(u"ikinci"_s))
            openCompany(file)->setSchemaVersion(currentSchemaVersion + 1);
        const auto bytes = [&file] {
            QFile read(file);
            return read.open(QFile::ReadOnly) ? read.readAll() : QByteArray();
        };
        const QByteArray before = bytes();
        on.open();
        on.fill(u"YeniYol"_s, path);
        on.fill(u"ResimyoluX"_s, u"c:\\başka"_s);
        on.fill(u"TeraziTip"_s, u"4"_s);
        on.messages.expect(
            {.text = reason.arg(file), .title = QString(), .icon = MessageIcon::None});
        on.save();
        on.messages.verify();

        QCOMPARE(bytes(), before);
        QCOMPARE(on.registered(), stored);
        QCOMPARE(on.oturum.DataYolu, u"c:\\database\\BIR.kuyum"_s);
        QVERIFY(on.XXX().startsWith(u"4|"_s)); // written first, into the database that is open
        QCOMPARE(on.text(u"YeniYol"_s), path);
        QCOMPARE(on.text(u"ResimyoluX"_s), u"c:\\başka"_s);
        QCOMPARE(on.focus(), u"YeniYol"_s);

        for (const MessageAnswer answer : {MessageAnswer::No, MessageAnswer::Yes}) {
            on.messages.expect({.text = u"DEĞİŞİKLİKLER KAYIT EDİLMEDİ, VAZGEÇİLSİN Mİ ?"_s,
                                .answer = answer,
                                .defaultAnswer = MessageAnswer::No});
            on.key(Qt::Key_Escape);
            QCOMPARE(on.screen->isVisible(), answer == MessageAnswer::No);
        }
    }

    void anothersSettingsAreNotUndoneUnseen()
    {
        Settings on;
        on.open();
        on.fill(u"TeraziTip"_s, u"4"_s);
        on.fill(u"ResimyoluX"_s, u"c:\\benim"_s);
        on.oturum.Veritabani->execute(u"Update XXX Set ComportID = 3"_s);
        openRegistry(on.companies.registry())
            ->execute(u"Update SirketKayit Set ResimYolu = 'c:\\onun' Where Srkkod = 1"_s);
        on.messages.expectChange({u"Ayarlar|Terazi tipi|4|2"_s, u"Ayarlar|Port|0|3"_s},
                                 ChangeAnswer::Mine);
        on.messages.expectChange({u"Şirket|Resim klasörü|c:\\benim|c:\\onun"_s},
                                 ChangeAnswer::Theirs);
        on.save();
        on.messages.verify();
        QVERIFY(on.XXX().startsWith(u"4|0|"_s));
        QCOMPARE(on.text(u"ResimyoluX"_s), u"c:\\onun"_s);
    }

    void anotherDatabaseIsOpenedAndRead()
    {
        Settings on;
        on.open();
        on.fill(u"YeniYol"_s, u"c:\\database\\ikinci.kuyum"_s);
        // A registry that refuses the row leaves the session where it was.
        openRegistry(on.companies.registry())
            ->engine()
            .run(u"CREATE TRIGGER dolu BEFORE UPDATE ON SirketKayit BEGIN SELECT "
                 "RAISE(ABORT, 'dolu'); END"_s);
        on.messages.expect(u"Kayıt, tablonun anahtarlarına uymuyor. (dolu)"_s);
        on.save();
        QCOMPARE(on.oturum.Veritabani->path(), on.companies.path(u"Database/bir.kuyum"_s));
        QCOMPARE(on.oturum.DataYolu, u"c:\\database\\BIR.kuyum"_s);
        openRegistry(on.companies.registry())->engine().run(u"DROP TRIGGER dolu"_s);

        on.messages.expect(
            {.text = u"Veri tabanı değişti.\n\nKullanıcı, yetkiler ve günün kurları yeni veri "
                     "tabanından ancak programın bir sonraki açılışında okunur. Programı kapatıp "
                     "yeniden açın."_s,
             .icon = MessageIcon::Information});
        on.save();
        on.messages.verify();
        QCOMPARE(on.oturum.Veritabani->path(), on.companies.path(u"Database/ikinci.kuyum"_s));
        QVERIFY(on.registered().startsWith(u"c:\\database\\ikinci.kuyum|"_s));
        // It has no settings: they cannot be typed, and saving adds no row.
        QVERIFY(!on.control(u"TeraziTip"_s)->isEnabled());
        QVERIFY(on.control(u"kayitNotu"_s)->isVisible());
        on.save();
        QCOMPARE(on.XXX(), u"none"_s);
        QCOMPARE(on.codes(u"Durum1"_s), QStringList());
    }

    void aDatabaseThatShutsEveryoneOutIsAskedAbout()
    {
        Settings on;
        createCompany(on.companies.path(u"Database/boş.kuyum"_s));
        on.open();
        on.fill(u"YeniYol"_s, u"c:\\database\\boş.kuyum"_s);
        on.messages.expect({.text = u"BU VERİ TABANINDA GİRİŞ YAPABİLECEK BİR KULLANICI YOK. "
                                    "PROGRAM BİR DAHA AÇILDIĞINDA GİRİŞ YAPILAMAZ.\n\nYİNE DE BU "
                                    "VERİ TABANINA GEÇİLSİN Mİ ?"_s,
                            .answer = MessageAnswer::No,
                            .defaultAnswer = MessageAnswer::No});
        on.save();
        on.messages.verify();
        QCOMPARE(on.registered(), stored);
    }

    void numbersThatDoNotFitAreRefused()
    {
        Settings on;
        on.open();
        on.fill(u"Transferyolu"_s, u"c:\\başka"_s);
        const auto refuse = [&](const QString &box, const QString &typed, const QString &text) {
            const QString before = on.text(box);
            on.fill(box, typed);
            on.messages.expect(text);
            on.save();
            on.messages.verify();
            QCOMPARE(on.focus(), box);
            on.fill(box, before);
        };
        const QString range = u" -32768 ile 32767 arasında bir tam sayı olmalıdır."_s;
        refuse(u"TeraziTip"_s, u"40000"_s, u"Terazi tipi"_s + range);
        refuse(u"ComportID"_s, u"COM3"_s, u"Port no bir sayı olmalıdır."_s);
        refuse(u"ComportID"_s, u"1.5"_s, u"Port no"_s + range);
        refuse(u"txtsabitayar"_s, u"."_s, u"Sabit ayar bir sayı olmalıdır."_s);
        QCOMPARE(on.registered(), stored);

        // From another tab, the box that is refused comes into sight.
        on.fill(u"Transferyolu"_s, u"c:\\gelen"_s);
        on.fill(u"ComportID"_s, u"COM3"_s);
        on.key(Qt::Key_D, Qt::AltModifier);
        QTRY_COMPARE(on.focus(), u"Durum1"_s);
        on.messages.expect(u"Port no bir sayı olmalıdır."_s);
        on.save();
        QCOMPARE(on.focus(), u"ComportID"_s);
        QVERIFY(on.control(u"ComportID"_s)->isVisible());
        on.fill(u"ComportID"_s, {}); // nothing is 0, and shown as such
        on.save();
        on.messages.verify();
        QCOMPARE(on.XXX(), u"2|0|9600,n,8,1|Zebra TLP2844|585"_s);
        QCOMPARE(on.text(u"ComportID"_s), u"0"_s);
    }

    void statusCodes()
    {
        Settings on;
        on.open();
        on.key(Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(on.focus(), u"Durum1"_s);
        const auto add = [&](const std::optional<QString> &code, const QString &title) {
            on.messages.expectInput(u"YENI DURUM KODUNU GIRIN"_s, code, title);
            on.key(Qt::Key_Insert);
        };
        add(u" D'ÖRT "_s, u"Sipariş Durum Kodu"_s);
        QCOMPARE(on.codes(u"Durum1"_s), QStringList({u"ONAYLANDI"_s, u"HAZIR"_s, u"D'ÖRT"_s}));
        on.messages.expectInput(u"YENI DURUM KODUNU GIRIN"_s, u"d'ört"_s);
        on.messages.expect(
            {.text = u"GİRİLEN BİLGİ TANIMLI..."_s, .icon = MessageIcon::Exclamation});
        on.key(Qt::Key_Insert);
        add(u"  "_s, u"Sipariş Durum Kodu"_s);
        add(std::nullopt, u"Sipariş Durum Kodu"_s);
        on.messages.expectInput(u"YENI DURUM KODUNU GIRIN"_s, QString(31, u'x'));
        on.messages.expect(u"Durum kodu en fazla 30 karakter olabilir."_s);
        on.key(Qt::Key_Insert);

        on.control(u"Durum2"_s)->setFocus();
        add(u"CİLA"_s, u"Uretim Durum Kodu"_s);
        QCOMPARE(on.codes(u"Durum2"_s), QStringList({u"DÖKÜM"_s, u"CİLA"_s}));
        on.messages.verify();
        const Database &db = *on.oturum.Veritabani;
        QCOMPARE(Settings::row(*on.oturum.Veritabani,
                               u"Select Count(*) From Durum1 Where d1_tanim = 'D''ÖRT'"_s),
                 u"1"_s);
        QCOMPARE(db.path(), on.companies.path(u"Database/bir.kuyum"_s));

        // A code of the orders stays; another goes when the user says so.
        on.oturum.Veritabani->execute(u"Update SiparisD Set Drm2 = 'DÖKÜM' Where Dotosayi = 1"_s);
        on.control<QListWidget>(u"Durum2"_s)->setCurrentRow(0);
        on.messages.expect(u"DÖKÜM SİPARİŞLERDE KULLANILIYOR, SİLİNEMEZ..."_s);
        on.key(Qt::Key_Delete);
        on.key(Qt::Key_Down);
        for (const MessageAnswer answer : {MessageAnswer::No, MessageAnswer::Yes}) {
            on.messages.expect({.text = u"CİLA SİLİNECEK..."_s,
                                .answer = answer,
                                .defaultAnswer = MessageAnswer::No});
            on.key(Qt::Key_Delete);
            QCOMPARE(on.codes(u"Durum2"_s).contains(u"CİLA"_s), answer == MessageAnswer::No);
        }
        QCOMPARE(
            Settings::row(*on.oturum.Veritabani, u"Select * From Durum2 Where d2_tanim = 'CİLA'"_s),
            u"none"_s);
    }

    void backupsAreMadeCheckedAndRestored()
    {
        Settings on;
        on.open();
        on.key(Qt::Key_Tab, Qt::ControlModifier);
        on.key(Qt::Key_Tab, Qt::ControlModifier);
        QCOMPARE(on.focus(), u"cmdYedekle"_s); // there is no backup to stand on
        QVERIFY(!on.control(u"cmdGeriYukle"_s)->isEnabled());
        on.messages.expect({.text = u"Yedek alındı ve denetlendi:\n\n"_s, .begins = true});
        on.enter();
        on.messages.verify();
        const QString database = on.oturum.Veritabani->path();
        const QString made = formatDateTime(backups(database).first().made);
        QCOMPARE(on.control<QTableView>(u"Yedekler"_s)->currentIndex().data().toString(), made);
        on.messages.expect(made + u" tarihli yedek sağlam, geri yüklenebilir."_s);
        on.press(Qt::Key_E, u"cmdDenetle"_s);

        // What is done after the backup goes with it, once the user says so.
        const auto code = [&on] {
            return Settings::row(*on.oturum.Veritabani, u"Select d2_tanim From Durum2"_s);
        };
        on.oturum.Veritabani->execute(u"Update Durum2 Set d2_tanim = 'SONRA'"_s);
        const auto ask = [&](MessageAnswer answer) {
            on.messages.expect(
                {.text = u"VERİ TABANI %1 TARİHLİ YEDEKTEKİ DURUMUNA DÖNECEK."_s.arg(made),
                 .answer = answer,
                 .defaultAnswer = MessageAnswer::No,
                 .begins = true});
        };
        ask(MessageAnswer::No);
        on.press(Qt::Key_G, u"cmdGeriYukle"_s);
        QCOMPARE(code(), u"SONRA"_s);
        {
            // A restore that fails leaves the database open as it was.
            const BackupPlace busy(database);
            ask(MessageAnswer::Yes);
            on.messages.expect({.text = {}, .title = u"HATA"_s, .begins = true});
            on.press(Qt::Key_G, u"cmdGeriYukle"_s);
            on.messages.verify();
            QCOMPARE(code(), u"SONRA"_s);
        }
        ask(MessageAnswer::Yes);
        on.messages.expect(
            {.text = u"Yedek geri yüklendi. Önceki veri tabanı burada saklanıyor:\n\n"_s,
             .begins = true});
        on.press(Qt::Key_G, u"cmdGeriYukle"_s);
        on.messages.verify();
        QCOMPARE(code(), u"DÖKÜM"_s);
        QCOMPARE(on.codes(u"Durum2"_s), QStringList(u"DÖKÜM"_s));
        QCOMPARE(on.control<QTableView>(u"Yedekler"_s)->model()->rowCount(), 2);
    }

    void aDamagedBackupIsRefused()
    {
        Settings on;
        const QString backup = makeBackup(*on.oturum.Veritabani, BackupKind::Daily);
        QFile file(backup);
        QVERIFY(file.open(QFile::ReadWrite) && file.seek(file.size() / 2));
        const char byte = file.peek(1).at(0);
        file.write(QByteArray(1, char(byte + 1)));
        file.close();
        const Database *before = on.oturum.Veritabani.get();
        on.open();
        on.fill(u"ComportID"_s, u"5"_s);
        on.key(Qt::Key_Y, Qt::AltModifier);
        QTRY_COMPARE(on.focus(), u"Yedekler"_s);
        // What is typed belongs to the database that would go.
        on.messages.expect(u"DEĞİŞİKLİKLER KAYIT EDİLMEDİ, VAZGEÇİLSİN Mİ ?"_s, MessageAnswer::No);
        on.press(Qt::Key_G, u"cmdGeriYukle"_s);
        on.messages.expect(u"DEĞİŞİKLİKLER KAYIT EDİLMEDİ, VAZGEÇİLSİN Mİ ?"_s, MessageAnswer::Yes);
        on.messages.expect({.text = {}, .title = u"HATA"_s, .begins = true});
        on.press(Qt::Key_G, u"cmdGeriYukle"_s);
        on.messages.verify();
        QCOMPARE(on.oturum.Veritabani.get(), before); // it was not even closed
    }

    void repairsAllTables()
    {
        Settings on;
        on.oturum.Veritabani->execute(u"Update Firma Set Telefon = Null"_s);
        on.oturum.Veritabani->execute(u"Update XXX Set comportST = Null"_s);
        const auto phone = [&on] {
            return Settings::row(*on.oturum.Veritabani, u"Select Telefon From Firma"_s);
        };
        on.open();
        on.key(Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(on.focus(), u"CmdDosyaDuzenle"_s);
        for (const MessageAnswer answer : {MessageAnswer::No, MessageAnswer::Yes}) {
            on.messages.expect({.text = u"SISTEMDEKI TUM DOSYALAR DUZENLENECEK..."_s,
                                .answer = answer,
                                .icon = MessageIcon::Critical});
            if (answer == MessageAnswer::Yes) {
                on.messages.expect({.text = u"TUM DOSYALAR DUZENLENMISTIR...\n\n"_s,
                                    .icon = MessageIcon::Information,
                                    .begins = true});
            }
            on.press(Qt::Key_O, u"CmdDosyaDuzenle"_s);
            on.messages.verify();
            QCOMPARE(phone(), answer == MessageAnswer::Yes ? u" "_s : QString());
        }
        on.save(); // does not undo it
        QCOMPARE(on.XXX(), u"2|0| |Zebra TLP2844|585"_s);
        QCOMPARE(backups(on.oturum.Veritabani->path()).first().kind, BackupKind::BeforeRepair);
        const ReportTable fields = on.control<RaporGrid>(u"Alanlar"_s)->table();
        QCOMPARE(fields.columns.size(), 3);
        QCOMPARE(fields.columns.first().heading, u"Name"_s);
        const TableDef last =
            on.oturum.Veritabani->tableDef(on.oturum.Veritabani->tableNames().last());
        QCOMPARE(fields.rows.size(), last.fields.size());
        QCOMPARE(fields.rows.first().values.first().toString(), last.fields.first().name);
    }

    void aCompanyThatIsNotInTheRegistry()
    {
        Settings on;
        on.oturum.SirketKodu = 99;
        on.messages.expect({.text = u"ŞİRKET KAYITLI DEĞİL..."_s,
                            .title = u"HATA"_s,
                            .icon = MessageIcon::Critical});
        on.open();
        on.messages.verify();
        QVERIFY(!on.control(u"YeniYol"_s)->isEnabled());
        QCOMPARE(on.focus(), u"YaziciAdi"_s);
        on.fill(u"TeraziTip"_s, u"9"_s); // the rest can be saved all the same
        on.save();
        QVERIFY(on.XXX().startsWith(u"9|"_s));
        QCOMPARE(on.registered(), stored);
        on.press(Qt::Key_M, u"Yardim"_s);
        QCOMPARE(on.asked, QStringList(u"Yardim Bilgileri"_s));
    }
};

KUYUM_TEST(ParametrelerTest)

} // namespace kuyum

#include "ParametrelerTest.moc"
