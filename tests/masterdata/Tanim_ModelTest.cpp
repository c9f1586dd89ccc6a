#include "Tanim_Model.h"
#include "BarcodeReader.h"
#include "DefinitionFixture.h"
#include "PictureEntry.h"
#include "Pictures.h"
#include "TestRegistry.h"

using namespace Qt::StringLiterals;

namespace kuyum {

namespace {

struct Models : DefinitionFixture<Tanim_Model>
{
    Models()
    {
        QDir().mkpath(oturum.ResimYolu);
        control<PictureEntry>(u"Resim"_s)->setChooser([this](QWidget *) { return chosen; });
    }

    /// The rows of a model as "tip kod adet miktar".
    QStringList rows(const QString &model, int type) const
    {
        Recordset set = oturum.Veritabani->query(
            u"Select * From Model Where Model = '%1' and M_Uruntip = %2 Order by Model_ID"_s.arg(
                model, QString::number(type)));
        QStringList result;
        while (set.next())
            result.append(u"%1 %2 %3 %4"_s.arg(set.text(u"M_Tip"), set.text(u"M_Kod"),
                                               set.text(u"M_Adet"), set.text(u"M_Miktar")));
        return result;
    }
    QTableView *grid() const { return control<QTableView>(u"Rapor"_s); }
    /// The grid's rows as "tip|kod|adet".
    QStringList shown() const
    {
        QStringList result;
        for (int row = 0; row < grid()->model()->rowCount(); ++row) {
            QStringList texts;
            for (int column = 0; column < 3; ++column)
                texts.append(grid()->model()->index(row, column).data().toString());
            result.append(texts.join(u'|'));
        }
        return result;
    }
    std::pair<int, int> cursor() const
    {
        return {grid()->currentIndex().row(), grid()->currentIndex().column()};
    }

    /// Each letter to where the focus is by then: the first one opens an editor.
    void type(const QString &text) const
    {
        for (const QChar letter : text)
            typeText(screen->focusWidget(), letter);
    }
    void typeEnter(const QString &text = {}) const
    {
        type(text);
        key(Qt::Key_Return);
    }
    /// Opens a model by keys; `down` steps down the product types.
    void find(const QString &model, int down = 0) const
    {
        typeEnter(model);
        for (int i = 0; i < down; ++i)
            key(Qt::Key_Down);
        key(Qt::Key_Return);
    }
    void toGrid() const { typeEnter(); }
    void offer(const QColor &color)
    {
        chosen = dir.filePath(u"seçilen.png"_s);
        QVERIFY(plainPicture(color).save(chosen));
        press(Qt::Key_D, u"cmdDosya"_s);
    }
    QString file(const QString &name) const { return oturum.ResimYolu + u'/' + name; }
    void save() const { press(Qt::Key_K, u"cmdKayit"_s); }

    QString chosen;
};

QStringList textsOf(const PrintDocument &document)
{
    QStringList texts;
    for (const PageItem &item : document.pages().first().items) {
        if (const auto *text = std::get_if<PageText>(&item))
            texts.append(text->text);
    }
    return texts;
}

LookupAnswer chosenCode(const QString &code, const QString &id)
{
    LookupAnswer answer;
    answer.Secilen = code;
    answer.SecilenID = id;
    return answer;
}

const QString giveUp = u"DEĞİŞİKLİKLER KAYIT EDİLMEDİ, VAZGEÇİLSİN Mİ ?"_s;

} // namespace

class Tanim_ModelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addsAModelByKeyboard();
    void findsAndChangesAModel();
    void showsItsSymbol();
    void picksFromTheList();
    void refusesUnknownCodes();
    void finishesOrRefusesAnOpenEditor();
    void removesRows();
    void keepsARowWhoseStoneIsGone();
    void asksBeforeAnotherProgramsRowsAreReplaced();
    void asksBeforeMaterialsAreGivenUp();
    void aHeldKeyTakesOneStep();
    void savesPicturesInBothPlaces();
    void aFailedPictureOrWriteLosesNothing();
    void printsItsLabel();
    void printsTheSheet();
    void deletesTheModelOfOneType();
};

void Tanim_ModelTest::addsAModelByKeyboard()
{
    Models on;
    QCOMPARE(on.focus(), u"Model"_s);
    on.typeEnter(u" Işıl'ın İğ1 "_s);
    QCOMPARE(on.focus(), u"UrunTipi"_s);
    on.key(Qt::Key_Down); // walking past a type does not find
    QVERIFY(!on.isEditing());
    on.key(Qt::Key_Return);
    QCOMPARE(on.focus(), u"Miktar"_s);
    QCOMPARE(on.shown(), QStringList(u"||"_s));
    on.typeEnter(u"2,5"_s);
    QCOMPARE(on.focus(), u"Rapor"_s);

    on.key(Qt::Key_Return);
    QCOMPARE(on.focus(), u"cmbTas"_s);
    on.key(Qt::Key_Return);
    QCOMPARE(on.cursor(), std::pair(0, 1));
    on.typeEnter(u"zrk 2"_s);
    QCOMPARE(on.cursor(), std::pair(0, 2));
    on.typeEnter(u"4"_s);
    QCOMPARE(on.cursor(), std::pair(0, 0));

    on.key(Qt::Key_Insert);
    on.typeEnter(u"y"_s);
    on.answers.append(chosenCode(u"K-2"_s, u"2"_s));
    on.key(Qt::Key_Return);
    QCOMPARE(on.focus(), u"txtTas"_s);
    on.key(Qt::Key_Return); // no code: the list
    QCOMPARE(on.asked.last().ListeTuru, u"Kalip Listesi"_s);
    on.typeEnter(u"1,5"_s);
    on.key(Qt::Key_Insert); // a row that is left blank is not stored
    QCOMPARE(on.shown(), QStringList({u"Tas|ZRK 2|4"_s, u"Yarı Mamul|K-2|1.5"_s, u"||"_s}));
    on.save();
    QCOMPARE(on.rows(u"Işıl''ın İğ1"_s, 2), QStringList({u"0 1 4 2.5"_s, u"1 2 1.5 2.5"_s}));
    QVERIFY(!on.isEditing());
    QCOMPARE(on.focus(), u"Model"_s);
    QCOMPARE(on.shown(), QStringList(u"||"_s));
}

void Tanim_ModelTest::findsAndChangesAModel()
{
    Models on;
    on.messages.expect({.text = u"BİR MODEL GİRİLMELİDİR..."_s, .icon = MessageIcon::Exclamation});
    on.press(Qt::Key_B, u"CmdBul"_s);
    QCOMPARE(on.focus(), u"Model"_s);
    on.messages.verify();

    on.oturum.Veritabani->execute(u"Update Model Set M_Miktar = 2.125 Where Model = 'A75'"_s);
    on.find(u"a75"_s);
    QCOMPARE(on.text(u"Miktar"_s), u"2.13"_s);
    QVERIFY(!on.control(u"CmdBul"_s)->isEnabled()); // it would give up what is being edited
    QCOMPARE(on.shown(), QStringList({u"Tas|ZRK 2|4"_s, u"Yarı Mamul|K-1|1"_s}));
    on.toGrid();
    on.key(Qt::Key_Return);
    on.key(Qt::Key_Return); // the same kind costs neither code nor count
    on.key(Qt::Key_Right);
    on.typeEnter(u"6"_s);
    on.save();
    QCOMPARE(on.rows(u"A75"_s, 1), QStringList({u"0 1 6 2.125"_s, u"1 1 1 2.125"_s}));
    QCOMPARE(on.rows(u"A75"_s, 2), QStringList(u"1 2 2 2.125"_s)); // the necklace of that name
    QCOMPARE(on.row(u"Select Model From Model Where Model = 'A75' and M_Uruntip = 1"_s),
             u"A75"_s); // not renamed by how it was typed

    on.find(u"boş"_s);
    QCOMPARE(on.shown(), QStringList(u"||"_s));
    on.save();
    QCOMPARE(on.rows(u"boş"_s, 1), QStringList(u"0 0 0 3.5"_s));
}

void Tanim_ModelTest::showsItsSymbol()
{
    Models on;
    const auto symbol = [&] { return on.control<QLabel>(u"pBarkod"_s)->pixmap(); };
    on.find(u"A75"_s);
    const QString last = on.row(u"Select Max(Model_ID) as n From Model Where Model = 'A75' and "
                                "M_Uruntip = 1"_s);
    const QStringList read = readBarcodes(symbol().toImage());
    QCOMPARE(read.size(), 1);
    QCOMPARE(read.first().chopped(1), u"EAN-13:16001"_s + last.rightJustified(7, u'0'));
    on.key(Qt::Key_Escape);
    QVERIFY(symbol().isNull());

    // A number that makes no symbol keeps nobody from the model.
    on.oturum.Veritabani->execute(u"Update UrunTipi Set TipID = -1 Where TipID = 1"_s);
    on.oturum.Veritabani->execute(u"Update Model Set M_Uruntip = -1 Where M_Uruntip = 1"_s);
    on.open();
    on.control<QComboBox>(u"UrunTipi"_s)->setCurrentText(u"Yüzük"_s);
    on.typeEnter(u"A75"_s);
    on.key(Qt::Key_Return);
    QVERIFY(on.isEditing());
    QCOMPARE(on.shown().size(), 2);
}

void Tanim_ModelTest::picksFromTheList()
{
    Models on;
    LookupAnswer answer;
    answer.Secilen = u"A75"_s;
    answer.SecilenTip = 2;
    on.type(u"a"_s);
    on.answers.append(answer);
    on.press(Qt::Key_L, u"cmdListe"_s);
    QCOMPARE(on.asked.last().ListeTuru, u"Model Listesi"_s);
    QCOMPARE(on.asked.last().ListeFiltre, u"a"_s);
    QCOMPARE(on.text(u"UrunTipi"_s), u"Kolye"_s);
    QCOMPARE(on.shown(), QStringList(u"Yarı Mamul|K-2|2"_s));
    on.key(Qt::Key_Escape);
    QVERIFY(!on.isEditing());
    on.key(Qt::Key_Return); // without a model the list, from which nothing is taken
    QCOMPARE(on.asked.size(), 2);
    QVERIFY(!on.isEditing());
}

void Tanim_ModelTest::refusesUnknownCodes()
{
    Models on;
    on.find(u"A75"_s);
    on.toGrid();
    on.key(Qt::Key_Right);
    on.messages.expect(
        {.text = u"YOK'9 KODLU TAŞ BULUNAMADI ...!"_s, .icon = MessageIcon::Exclamation});
    on.typeEnter(u"YOK'9"_s);
    on.messages.verify();
    QCOMPARE(on.focus(), u"txtTas"_s);
    const auto *box = qobject_cast<QLineEdit *>(on.screen->focusWidget());
    QCOMPARE(box->selectedText(), u"YOK'9"_s);
    QCOMPARE(on.shown().first(), u"Tas|ZRK 2|4"_s);
    on.typeEnter(u"prl 1"_s); // typed over at once
    QCOMPARE(on.shown().first(), u"Tas|PRL 1|4"_s);
    on.messages.expect(u"SAYISAL DEGER GIRIN..."_s);
    on.typeEnter(u"1x2"_s);
    QCOMPARE(on.shown().first(), u"Tas|PRL 1|12"_s);
}

void Tanim_ModelTest::finishesOrRefusesAnOpenEditor()
{
    Models on;
    on.find(u"A75"_s);
    on.toGrid();
    on.key(Qt::Key_Right);
    on.type(u"bilinmez"_s);
    on.messages.expect(u"bilinmez KODLU TAŞ BULUNAMADI ...!"_s);
    on.save();
    on.messages.verify();
    QVERIFY(on.isEditing());
    QCOMPARE(on.rows(u"A75"_s, 1), QStringList({u"0 1 4 2"_s, u"1 1 1 2"_s}));
    on.type(u"prl 1"_s);
    on.save();
    QCOMPARE(on.rows(u"A75"_s, 1), QStringList({u"0 2 4 2"_s, u"1 1 1 2"_s}));

    on.find(u"A75"_s);
    on.toGrid();
    on.key(Qt::Key_Right);
    on.type(u"x"_s);
    on.messages.expect(u"x KODLU TAŞ BULUNAMADI ...!"_s);
    const QRect elsewhere = on.grid()->visualRect(on.grid()->model()->index(1, 0));
    QTest::mouseClick(on.grid()->viewport(), Qt::LeftButton, {}, elsewhere.center());
    on.messages.verify();
    QCOMPARE(on.focus(), u"txtTas"_s);
    on.key(Qt::Key_Escape); // leaves the editor, not the model
    QVERIFY(on.isEditing());
    QCOMPARE(on.shown().first(), u"Tas|PRL 1|4"_s);
}

void Tanim_ModelTest::removesRows()
{
    Models on;
    on.find(u"A75"_s);
    on.toGrid();
    for (const MessageAnswer answer : {MessageAnswer::No, MessageAnswer::Yes}) {
        on.messages.expect({.text = u"ZRK 2 LİSTEDEN ÇIKARILACAK..."_s,
                            .answer = answer,
                            .icon = MessageIcon::Information});
        on.key(Qt::Key_Delete);
        on.messages.verify();
    }
    QCOMPARE(on.shown(), QStringList(u"Yarı Mamul|K-1|1"_s));
    // Nor does another kind clear a filled row unasked.
    for (const MessageAnswer answer : {MessageAnswer::No, MessageAnswer::Yes}) {
        on.grid()->setCurrentIndex(on.grid()->model()->index(0, 0));
        on.messages.expect({.text = u"TİP DEĞİŞİNCE SATIRDAKİ K-1 SİLİNECEK, DEĞİŞTİRİLSİN Mİ ?"_s,
                            .answer = answer,
                            .defaultAnswer = MessageAnswer::No});
        on.key(Qt::Key_Return);
        on.key(Qt::Key_Up);
        on.key(Qt::Key_Return);
        on.messages.verify();
        QCOMPARE(on.shown().first() == u"Yarı Mamul|K-1|1", answer == MessageAnswer::No);
    }
    on.grid()->setCurrentIndex(on.grid()->model()->index(0, 0));
    on.messages.expect(u" LİSTEDEN ÇIKARILACAK..."_s, MessageAnswer::Yes);
    on.key(Qt::Key_Delete);
    QCOMPARE(on.shown(), QStringList(u"||"_s));
    on.key(Qt::Key_Delete); // a blank row is no loss
    on.save();
    QCOMPARE(on.rows(u"A75"_s, 1), QStringList(u"0 0 0 2"_s));
}

void Tanim_ModelTest::keepsARowWhoseStoneIsGone()
{
    Models on;
    on.oturum.Veritabani->execute(u"DELETE From Tas Where Taskodu = 'ZRK 2'"_s);
    on.find(u"A75"_s);
    QCOMPARE(on.shown(), QStringList({u"Tas||4"_s, u"Yarı Mamul|K-1|1"_s}));
    QVERIFY(on.control(u"uyari"_s)->isVisible());
    const ScriptedMessages::Expected question{
        .text = u"TAŞI YA DA KALIBI SİLİNMİŞ 1 MALZEME MODELDEN ÇIKACAK.\n\nKAYDEDİLSİN Mİ ?"_s,
        .answer = MessageAnswer::No,
        .icon = MessageIcon::Exclamation,
        .defaultAnswer = MessageAnswer::No};
    on.messages.expect(question);
    on.save();
    on.messages.verify();
    QVERIFY(on.isEditing());
    QCOMPARE(on.rows(u"A75"_s, 1), QStringList({u"0 1 4 2"_s, u"1 1 1 2"_s}));

    on.toGrid();
    on.key(Qt::Key_Right);
    on.typeEnter(u"PRL 1"_s); // another stone in its place
    QVERIFY(!on.control(u"uyari"_s)->isVisible());
    on.save();
    QCOMPARE(on.rows(u"A75"_s, 1), QStringList({u"0 2 4 2"_s, u"1 1 1 2"_s}));
}

void Tanim_ModelTest::asksBeforeAnotherProgramsRowsAreReplaced()
{
    Models on;
    for (const QString &model : {u"yeni"_s, u"A75"_s}) {
        on.find(model);
        on.typeEnter(u"9"_s);
        on.oturum.Veritabani->execute(
            u"DELETE From Model Where Model = '%1' and M_Uruntip = 1"_s.arg(model));
        on.oturum.Veritabani->execute(
            u"Insert into Model (Model, M_Uruntip, M_Tip, M_Kod, M_Adet, M_Miktar) "
            "values ('%1', 1, 0, 2, 7, 1)"_s.arg(model));
        QStringList changes = {u"Model %1|Gram|9|1"_s.arg(model),
                               u"Taş PRL 1|(bütünü)|yok|Adet: 7"_s};
        if (model == u"A75"_s)
            changes +=
                {u"Taş ZRK 2|(bütünü)|Adet: 4|yok"_s, u"Yarı mamul K-1|(bütünü)|Adet: 1|yok"_s};
        for (const ChangeAnswer answer : {ChangeAnswer::Back, ChangeAnswer::Mine}) {
            on.messages.expectChange(changes, answer);
            on.save();
            on.messages.verify();
            if (answer == ChangeAnswer::Back)
                QCOMPARE(on.rows(model, 1), QStringList(u"0 2 7 1"_s));
        }
        QVERIFY(!on.rows(model, 1).contains(u"0 2 7 1"_s)); // both of them would be one model
        QVERIFY(!on.isEditing());
    }
}

void Tanim_ModelTest::aHeldKeyTakesOneStep()
{
    Models on;
    const auto hold = [&](Qt::Key key) {
        for (int i = 0; i < 5; ++i)
            holdKey(on.screen->focusWidget(), key);
    };
    on.find(u"A75"_s);
    on.toGrid();
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Insert, Qt::Key_Delete})
        hold(key);
    QCOMPARE(on.focus(), u"Rapor"_s);
    QCOMPARE(on.shown().size(), 2);
    on.key(Qt::Key_Return);
    hold(Qt::Key_Return);
    hold(Qt::Key_Escape);
    QCOMPARE(on.focus(), u"cmbTas"_s);
}

void Tanim_ModelTest::asksBeforeMaterialsAreGivenUp()
{
    Models on;
    on.find(u"A75"_s);
    on.typeEnter(u"9"_s); // as on every definition screen, a value is given up without a question
    on.key(Qt::Key_Escape);
    QVERIFY(!on.isEditing());
    QCOMPARE(on.rows(u"A75"_s, 1), QStringList({u"0 1 4 2"_s, u"1 1 1 2"_s}));

    on.find(u"A75"_s);
    on.toGrid();
    on.key(Qt::Key_Right);
    on.type(u"PRL 1"_s); // not entered yet
    on.messages.expect(giveUp, MessageAnswer::No);
    on.press(Qt::Key_V, u"cmdvazgec"_s);
    on.messages.verify();
    on.key(Qt::Key_Escape);
    on.key(Qt::Key_Right);
    on.typeEnter(u"9"_s);
    for (const auto &leave : {std::function([&] { on.key(Qt::Key_Escape); }),
                              std::function([&] { on.press(Qt::Key_V, u"cmdvazgec"_s); }),
                              std::function([&] { on.screen->close(); })}) {
        on.messages.expect({.text = giveUp,
                            .answer = MessageAnswer::No,
                            .icon = MessageIcon::Exclamation,
                            .defaultAnswer = MessageAnswer::No});
        leave();
        on.messages.verify();
        QVERIFY(on.screen->isVisible() && on.isEditing());
    }
    on.messages.expect(giveUp, MessageAnswer::Yes);
    on.key(Qt::Key_Escape);
    QCOMPARE(on.rows(u"A75"_s, 1), QStringList({u"0 1 4 2"_s, u"1 1 1 2"_s}));
    on.key(Qt::Key_Escape);
    QVERIFY(!on.screen->isVisible());
}

void Tanim_ModelTest::savesPicturesInBothPlaces()
{
    Models on;
    on.find(u"A75"_s);
    on.offer(Qt::blue);
    on.save();
    QVERIFY(isJpegOf(on.file(u"A75.jpg"_s), Qt::blue));
    QVERIFY(!QFileInfo::exists(on.file(u"YZK"_s))); // the type's folder is never made

    QVERIFY(QDir(on.oturum.ResimYolu).mkdir(u"KLY"_s));
    on.find(u"A75"_s, 1);
    on.offer(Qt::red);
    on.messages.expect({.text = u"Resim kaydedildi, ancak ana resim klasöründe aynı adla bir resim "
                                "daha var; o silinmedikçe o gösterilir:\n"_s +
                                QDir::toNativeSeparators(on.file(u"A75.jpg"_s)),
                        .icon = MessageIcon::Information});
    on.save();
    on.messages.verify();
    QVERIFY(isJpegOf(on.file(u"KLY/A75.jpg"_s), Qt::red));
    QVERIFY(isJpegOf(on.file(u"A75.jpg"_s), Qt::blue));

    on.find(u"A75"_s, 1);
    on.messages.expect(u"A75 KODLU RESIM SILINECEK EMINMISINIZ..?"_s, MessageAnswer::Yes);
    on.press(Qt::Key_E, u"ResimSil"_s); // the one that is shown; the other one comes to light
    QVERIFY(!QFile::exists(on.file(u"A75.jpg"_s)));
    QCOMPARE(on.control<PictureEntry>(u"Resim"_s)->path(), on.file(u"KLY/A75.jpg"_s));
    on.offer(Qt::green);
    on.messages.expect({.text = u"Resim Mevcut. Uzerine Yazılsınmı?"_s,
                        .answer = MessageAnswer::No,
                        .title = u"Resim Kayıt"_s,
                        .icon = MessageIcon::Exclamation,
                        .defaultAnswer = MessageAnswer::No});
    on.save();
    on.messages.verify();
    QVERIFY(isJpegOf(on.file(u"KLY/A75.jpg"_s), Qt::red));
    on.find(u"A75"_s, 1);
    on.save(); // no new picture: no question
}

void Tanim_ModelTest::aFailedPictureOrWriteLosesNothing()
{
    Models on;
    on.find(u"C:1"_s);
    on.toGrid();
    on.typeEnter(u"t"_s);
    on.typeEnter(u"ZRK 2"_s);
    on.typeEnter(u"3"_s);
    on.offer(Qt::blue);

    on.oturum.Veritabani->engine().run(u"CREATE TRIGGER full BEFORE INSERT ON Model BEGIN SELECT "
                                       "RAISE(ABORT, 'disk dolu'); END"_s);
    on.messages.expect({.text = u"Kayıt, tablonun anahtarlarına uymuyor. (disk dolu)"_s,
                        .title = u"HATA"_s,
                        .icon = MessageIcon::Critical});
    on.save();
    on.messages.verify();
    QVERIFY(on.isEditing());
    QCOMPARE(on.shown(), QStringList(u"Tas|ZRK 2|3"_s));
    on.oturum.Veritabani->engine().run(u"DROP TRIGGER full"_s);

    // Saved again after its picture failed, the model is still there once.
    for (int i = 0; i < 2; ++i) {
        on.messages.expect(u"KAYIT YAPILDI, RESİM KAYDEDİLEMEDİ.\n\nResim kaydedilemedi, bu kod "
                           "dosya adı olamaz:\nC:1"_s);
        on.save();
        on.messages.verify();
        QCOMPARE(on.rows(u"C:1"_s, 1), QStringList(u"0 1 3 0"_s));
    }
}

void Tanim_ModelTest::printsItsLabel()
{
    Models on;
    on.oturum.Veritabani->execute(u"Insert into XXX (sabitayar, YaziciAdi) values (585, '')"_s);
    on.open();
    on.find(u"A75"_s);
    QCOMPARE(on.text(u"txtsabitayar"_s), u"585.0"_s);
    on.control<QCheckBox>(u"Check_Barkod"_s)->setChecked(true);
    on.save();
    QCOMPARE(on.labels.printed.size(), 1);
    QCOMPARE(on.labels.printer, u"Zebra TLP2844"_s);
    const QStringList texts = textsOf(on.labels.printed.first());
    for (const QString &text : {u"A75"_s, u"2.00"_s, u"585"_s, u"Yüzük"_s})
        QVERIFY2(texts.contains(text), qPrintable(text));

    on.typeEnter(u"1600100000019"_s); // a label from before that save
    QCOMPARE(on.text(u"Model"_s), u"A75"_s);
    on.control<QLineEdit>(u"txtsabitayar"_s)->clear();
    on.control<QCheckBox>(u"Check_Barkod"_s)->setChecked(true);
    on.save();
    QCOMPARE(textsOf(on.labels.printed.last()), texts.filter(QRegularExpression(u"^(?!585$)"_s)));

    on.labels.failure = u"Kâğıt bitti."_s;
    on.find(u"A75"_s);
    on.messages.expect({.text = u"KAYIT YAPILDI, ETİKET BASILAMADI.\n\nKâğıt bitti."_s,
                        .title = u"HATA"_s,
                        .icon = MessageIcon::Critical});
    on.save();
    on.messages.verify();
    QVERIFY(!on.isEditing());
    QCOMPARE(on.rows(u"A75"_s, 1).size(), 2);
}

void Tanim_ModelTest::printsTheSheet()
{
    Models on;
    on.find(u"A75"_s);
    on.toGrid();
    for (int i = 0; i < 25; ++i) {
        on.key(Qt::Key_Insert);
        on.typeEnter(u"y"_s);
        on.typeEnter(u"k-1"_s);
        on.typeEnter(u"1"_s);
    }
    on.messages.expect({.text = u"Satır Sayısı Geçiyor..."_s, .icon = MessageIcon::Exclamation});
    on.press(Qt::Key_Z, u"cmdYazdir"_s);
    on.messages.verify();
    QCOMPARE(on.viewer.shown.size(), 1);
    const QStringList texts = textsOf(on.viewer.shown.first());
    QVERIFY(texts.contains(u"MODEL : A75"_s));
    QVERIFY(texts.contains(u"ZRK 2   4 Ad"_s));
}

void Tanim_ModelTest::deletesTheModelOfOneType()
{
    Models on;
    const QString text = u"A75  BILGISI SILINECEK...\n\nONAYLIYORMUSUNUZ...!"_s;
    on.find(u"A75"_s);
    on.messages.expect({.text = text,
                        .answer = MessageAnswer::No,
                        .title = u"KAYIT SİLME"_s,
                        .icon = MessageIcon::Exclamation,
                        .defaultAnswer = MessageAnswer::No});
    on.press(Qt::Key_S, u"cmdsil"_s);
    on.messages.verify();
    QCOMPARE(on.rows(u"A75"_s, 1).size(), 2);
    on.messages.expect(text, MessageAnswer::Yes);
    on.press(Qt::Key_S, u"cmdsil"_s);
    QCOMPARE(on.rows(u"A75"_s, 1).size(), 0);
    QCOMPARE(on.rows(u"A75"_s, 2).size(), 1);
    QVERIFY(!on.isEditing());
}

KUYUM_TEST(Tanim_ModelTest)

} // namespace kuyum

#include "Tanim_ModelTest.moc"
