#include "Tanim_Kalip.h"
#include "DefinitionFixture.h"
#include "PictureEntry.h"
#include "Pictures.h"
#include "TestRegistry.h"

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

struct Molds : DefinitionFixture<Tanim_Kalip>
{
    Molds()
    {
        QDir().mkpath(oturum.ResimYolu);
        box()->setChooser([this](QWidget *) { return chosen; });
    }

    PictureEntry *box() const { return control<PictureEntry>(u"KalipResim"_s); }
    QString mold(const QString &code) const
    {
        return row(u"Select KalipKodu, KalipAck, KalipDur, kaliptarih From Kalip "
                   "Where KalipKodu = '%1'"_s.arg(code));
    }
    QString file(const QString &name) const { return oturum.ResimYolu + u"/KLP/"_s + name; }
    /// A stored picture of a mold, and one to choose.
    void addFile(const QString &name, const QColor &color) const
    {
        QDir(oturum.ResimYolu).mkdir(u"KLP"_s);
        QVERIFY(plainPicture(color).save(file(name), "JPEG"));
    }
    void offer(const QColor &color)
    {
        chosen = dir.filePath(u"seçilen.png"_s);
        QVERIFY(plainPicture(color).save(chosen));
    }

    QString chosen;
};

const ScriptedMessages::Expected overwrite(MessageAnswer answer)
{
    return {.text = u"Resim Mevcut. Uzerine Yazılsınmı?"_s,
            .answer = answer,
            .title = u"Resim Kayıt"_s,
            .icon = MessageIcon::Exclamation,
            .defaultAnswer = MessageAnswer::No};
}

} // namespace

class Tanim_KalipTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addsAMoldWithItsPictureByKeyboard()
    {
        Molds on;
        on.offer(Qt::blue);
        on.enter({u" Kalıp'ın İğ "_s});
        QCOMPARE(on.focus(), u"KalipAck"_s);
        on.enter({u"Çiçek ucu"_s, u"d"_s});
        QCOMPARE(on.focus(), u"cmdKayit"_s);
        on.press(Qt::Key_D, u"cmdDosya"_s);
        QVERIFY(on.box()->isNew());
        on.press(Qt::Key_K, u"cmdKayit"_s);
        QCOMPARE(on.mold(u"Kalıp''ın İğ"_s), u"Kalıp'ın İğ|Çiçek ucu|Disarda|01.06.2012"_s);
        QVERIFY(isJpegOf(on.file(u"Kalıp'ın İğ.jpg"_s), Qt::blue));
        QVERIFY(!on.isEditing());
        QVERIFY(!on.box()->holdsPicture());
        QVERIFY(!on.control(u"cmdCek"_s)->isVisible()); // no camera, no button
    }

    void asksBeforeItOverwrites()
    {
        Molds on;
        on.addFile(u"k-1.JPG"_s, Qt::red);
        on.offer(Qt::green);
        for (const MessageAnswer answer : {MessageAnswer::No, MessageAnswer::Yes}) {
            on.enter({u"K-1"_s});
            QVERIFY(on.box()->holdsPicture());
            on.press(Qt::Key_D, u"cmdDosya"_s);
            on.messages.expect(overwrite(answer));
            on.press(Qt::Key_K, u"cmdKayit"_s);
            on.messages.verify();
            const bool kept = answer == MessageAnswer::No;
            QVERIFY(isJpegOf(on.file(u"k-1.JPG"_s), kept ? Qt::red : Qt::green));
        }
        // In every spelling it is one file.
        QCOMPARE(QDir(on.file({})).entryList(QDir::Files), QStringList(u"k-1.JPG"_s));
    }

    void aPictureOnlyShownIsNotWrittenAnew()
    {
        Molds on;
        on.addFile(u"K-1.jpg"_s, Qt::red);
        QFile stored(on.file(u"K-1.jpg"_s));
        QVERIFY(stored.open(QIODevice::ReadOnly));
        const QByteArray before = stored.readAll();
        on.enter({u"K-1"_s, u"Yeni açıklama"_s});
        on.messages.expect(overwrite(MessageAnswer::Yes));
        on.press(Qt::Key_K, u"cmdKayit"_s);
        stored.seek(0);
        QCOMPARE(stored.readAll(), before);
        QVERIFY(on.mold(u"K-1"_s).contains(u"Yeni açıklama"_s));
    }

    void deletesThePicture()
    {
        Molds on;
        on.addFile(u"K-1.jpg"_s, Qt::red);
        on.enter({u"K-1"_s});
        for (const MessageAnswer answer : {MessageAnswer::No, MessageAnswer::Yes}) {
            on.messages.expect({.text = u"K-1 KODLU RESIM SILINECEK EMINMISINIZ..?"_s,
                                .answer = answer,
                                .title = u"RESIM SILME"_s,
                                .icon = MessageIcon::Exclamation});
            on.press(Qt::Key_E, u"ResimSil"_s);
            on.messages.verify();
            QCOMPARE(QFile::exists(on.file(u"K-1.jpg"_s)), answer == MessageAnswer::No);
        }
        QVERIFY(!on.box()->holdsPicture());
        on.press(Qt::Key_E, u"ResimSil"_s); // nothing to delete, nothing to ask
        on.press(Qt::Key_K, u"cmdKayit"_s);
        QVERIFY(!QFile::exists(on.file(u"K-1.jpg"_s)));
    }

    void savesTheRowWhenThePictureCannotBe()
    {
        Molds on;
        on.offer(Qt::blue);
        on.enter({u"A/B"_s, u"eğik"_s});
        on.press(Qt::Key_D, u"cmdDosya"_s);
        on.messages.expect({.text = u"KAYIT YAPILDI, RESİM KAYDEDİLEMEDİ.\n\nResim kaydedilemedi, "
                                    "bu kod dosya adı olamaz:\nA/B"_s,
                            .title = u"HATA"_s,
                            .icon = MessageIcon::Critical});
        on.press(Qt::Key_K, u"cmdKayit"_s);
        on.messages.verify();
        QCOMPARE(on.mold(u"A/B"_s), u"A/B|eğik|Icerde|01.06.2012"_s);
        QVERIFY(on.isEditing()); // and the picture is still there to be kept elsewhere
        QVERIFY(on.box()->isNew());
    }

    void tellsOfABrokenPicture()
    {
        Molds on;
        on.addFile(u"K-1.jpg"_s, Qt::red);
        QVERIFY(QFile::resize(on.file(u"K-1.jpg"_s), 200));
        on.messages.expect(u"K-1.jpg: Resim dosyası bozuk."_s);
        on.enter({u"K-1"_s});
        on.messages.verify();
        on.chosen = on.file(u"K-1.jpg"_s);
        on.messages.expect(
            {.text = u"K-1.jpg: Resim dosyası bozuk."_s, .icon = MessageIcon::Exclamation});
        on.press(Qt::Key_D, u"cmdDosya"_s);
        on.messages.verify();
        on.press(Qt::Key_K, u"cmdKayit"_s); // the box holds no picture: no question
    }

    void cancelAndDeleteLeaveOrTakeTheRow()
    {
        Molds on;
        on.oturum.Veritabani->execute(u"Update Kalip Set KalipDur = 'Tamirde' "
                                      "Where KalipKodu = 'K-2'"_s);
        const QString before = on.mold(u"K-2"_s);
        on.enter({u"k-2"_s, u"başka"_s});
        on.key(Qt::Key_Escape);
        QCOMPARE(on.mold(u"K-2"_s), before);
        on.enter({u"K-2"_s});
        on.press(Qt::Key_K, u"cmdKayit"_s);
        QCOMPARE(on.mold(u"K-2"_s), before); // a place that the list does not know stays

        const ScriptedMessages::Expected question{.text = u"K-2 SİLİNECEK. ONAYLIYORMUSUNUZ.?"_s,
                                                  .answer = MessageAnswer::No,
                                                  .title = QString(),
                                                  .icon = MessageIcon::Exclamation,
                                                  .defaultAnswer = MessageAnswer::No};
        on.enter({u"K-2"_s});
        on.messages.expect(question);
        on.press(Qt::Key_S, u"cmdsil"_s);
        QVERIFY(on.isEditing());
        on.messages.expect(u"K-2 SİLİNECEK. ONAYLIYORMUSUNUZ.?"_s, MessageAnswer::Yes);
        on.press(Qt::Key_S, u"cmdsil"_s);
        QCOMPARE(on.mold(u"K-2"_s), u"none"_s);
        QCOMPARE(on.row(u"Select Count(*) as n From Model Where M_Kod = 2 and M_Tip = 1"_s),
                 u"1"_s); // models keep what they refer to
    }
};

KUYUM_TEST(Tanim_KalipTest)

} // namespace kuyum

#include "Tanim_KalipTest.moc"
