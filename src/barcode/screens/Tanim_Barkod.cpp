#include "Tanim_Barkod.h"

#include "DocumentViewer.h"
#include "EntryControls.h"
#include "Guarded.h"
#include "LabelLookup.h"
#include "LabelPrinter.h"
#include "Numbers.h"
#include "Oturum.h"
#include "PictureFiles.h"
#include "ProductLabel.h"
#include "Theme.h"
#include "TurkishText.h"
#include "ui_Tanim_Barkod.h"

#include <QKeyEvent>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace kuyum {

Tanim_Barkod::Tanim_Barkod(const ScreenContext &context, LabelPrinter &labelPrinter,
                           QWidget *parent)
    : QDialog(parent),
      m_context(context),
      m_labels(labelPrinter, context.messages),
      m_store(context.oturum),
      m_ui(std::make_unique<Ui::Tanim_Barkod>()),
      m_settings(m_store.ayarlar()),
      m_types(m_store.BarkodTipleri())
{
    m_ui->setupUi(this);
    setUpLook();
    connectControls();
    clear();
    resize(QSize(820, 460).boundedTo(screen()->availableSize() * 0.95));
}

Tanim_Barkod::~Tanim_Barkod() = default;

void Tanim_Barkod::setUpLook()
{
    QPalette warning = palette();
    warning.setColor(QPalette::WindowText, themeColors(palette()).mark);
    m_ui->uyari->setPalette(warning);
    // What is shown only does not look like a box to type in.
    QPalette shown = palette();
    shown.setColor(QPalette::Base, shown.color(QPalette::Window));
    m_ui->txtUruntipi->setPalette(shown);

    m_ui->BarkodTip->addItem(u"Standart etiket"_s);
    for (const BarkodTipi &tip : m_types)
        m_ui->BarkodTip->addItem(tip.BarkodTip_Ad);
    for (QWidget *control : std::initializer_list<QWidget *>{m_ui->BarkodTipLabel, m_ui->BarkodTip})
        control->setVisible(!m_types.isEmpty());
    m_asked = {
        {u"%TFYT%"_s, m_ui->txtTopFiyatLabel, m_ui->txtTopFiyat},
        {u"%PFYT%"_s, m_ui->txtPerFiyatLabel, m_ui->txtPerFiyat},
        {u"%ALAN1%"_s, m_ui->txtAlan1Label, m_ui->txtAlan1},
        {u"%ALAN2%"_s, m_ui->txtAlan2Label, m_ui->txtAlan2},
        {u"%ALAN3%"_s, m_ui->txtAlan3Label, m_ui->txtAlan3},
        {u"%ALAN4%"_s, m_ui->txtAlan4Label, m_ui->txtAlan4},
        {u"%ALAN5%"_s, m_ui->txtAlan5Label, m_ui->txtAlan5},
    };
    typeChosen();
}

void Tanim_Barkod::bind(QWidget *button, void (Tanim_Barkod::*action)())
{
    connect(static_cast<QPushButton *>(button), &QPushButton::clicked, this,
            [this, action] { guarded(m_context.messages, this, [&] { (this->*action)(); }); });
}

void Tanim_Barkod::connectControls()
{
    bind(m_ui->cmdBarkod, &Tanim_Barkod::print);
    bind(m_ui->cmdOnizleme, &Tanim_Barkod::preview);
    bind(m_ui->cmdvazgec, &Tanim_Barkod::clear);
    connect(m_ui->cmdListe, &QPushButton::clicked, this, [this] {
        guarded(m_context.messages, this, [this] { pick(m_ui->Model->text().trimmed()); });
    });
    connect(m_ui->cmdSon, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_ui->Model, &QLineEdit::textChanged, this, &Tanim_Barkod::updateButtons);
    connect(m_ui->BarkodTip, &QComboBox::currentIndexChanged, this, &Tanim_Barkod::typeChosen);
    keepNumeric(*m_ui->txtMiktar, m_context.messages);
}

// Keys

bool Tanim_Barkod::event(QEvent *event)
{
    // Held down, the printing button's letter would print label after label.
    if (event->type() == QEvent::ShortcutOverride &&
        static_cast<QKeyEvent *>(event)->isAutoRepeat()) {
        event->accept();
        return true;
    }
    return QDialog::event(event);
}

void Tanim_Barkod::keyPressEvent(QKeyEvent *event)
{
    // Held down it would walk on through the next model's boxes, and print again.
    if (isEnter(*event) && event->isAutoRepeat())
        return;
    if (isEnter(*event))
        guarded(m_context.messages, this, [this] { enterPressed(); });
    else if (event->key() == Qt::Key_Escape && m_found)
        clear();
    else
        QDialog::keyPressEvent(event);
}

/// Enter goes on: from the model to its label, from box to box, and from the
/// last to the printing. On a button it presses it.
void Tanim_Barkod::enterPressed()
{
    QWidget *from = focusWidget();
    if (auto *button = qobject_cast<QAbstractButton *>(from))
        button->click();
    else if (from == m_ui->Model)
        ModelBul();
    else if (m_found)
        goOn(from);
}

void Tanim_Barkod::goOn(const QWidget *from)
{
    QList<QWidget *> way = {m_ui->txtMiktar, m_ui->txtAyar, m_ui->txtAciklama, m_ui->BarkodTip,
                            m_ui->OzelUrun};
    for (const AskedBox &asked : std::as_const(m_asked))
        way.append(asked.box);
    way.append(m_ui->cmdBarkod);
    qsizetype next = way.indexOf(from) + 1;
    while (next < way.size() - 1 && !way[next]->isVisible())
        ++next;
    way[next]->setFocus(Qt::TabFocusReason);
    if (auto *box = qobject_cast<QLineEdit *>(way[next]))
        TumunuSec(*box);
}

// Finding

void Tanim_Barkod::ModelBul()
{
    const QString model = m_ui->Model->text().trimmed();
    const QList<qint32> types = model.isEmpty() ? QList<qint32>() : m_store.modelTipleri(model);
    const std::optional<LabelledModel> label = LabelLookup(m_context.oturum).find(model);
    if (label && label->isFound())
        find(label->Model, label->TipID);
    else if (types.size() == 1)
        find(model, types.first());
    else if (model.isEmpty() || types.size() > 1)
        pick(model); // it is for the user to say under which type
    else if (label)
        warn(u"%1 (%2)"_s.arg(label->whyNot(), model));
    else
        warn(u"MODEL BULUNAMADI: %1"_s.arg(model));
    if (m_ui->Model->hasFocus())
        TumunuSec(*m_ui->Model);
}

void Tanim_Barkod::pick(const QString &filter)
{
    const LookupAnswer answer = m_context.openList(this, {u"Model Listesi"_s, filter});
    if (!answer.Secilen.isEmpty())
        find(answer.Secilen, answer.SecilenTip);
}

void Tanim_Barkod::find(const QString &model, qint32 TipID)
{
    if (const std::optional<EtiketModeli> found = m_store.ModelBul(model, TipID))
        showModel(*found);
}

void Tanim_Barkod::showModel(const EtiketModeli &found)
{
    const Etiket &etiket = found.etiket;
    const bool same =
        m_found && m_found->etiket.Model == etiket.Model && m_found->etiket.TipID == etiket.TipID;
    if (!same)
        clearTyped();
    m_found = found;
    m_ui->Model->setText(etiket.Model);
    m_ui->txtUruntipi->setText(etiket.UrunTipi);
    m_ui->txtMiktar->setText(formatNumber(etiket.Miktar, u"##0.00"));
    m_ui->txtAyar->setText(m_settings.karat());
    m_ui->Picture1->showFile(
        modelPicturePath(m_context.oturum.ResimYolu, etiket.Model, found.KisaAD));
    m_ui->pBarkod->draw(barcodeNumber({etiket.TipID, etiket.Model_ID}));
    tellHiddenFields();
    updateButtons();
    m_ui->txtMiktar->setFocus(Qt::TabFocusReason);
    TumunuSec(*m_ui->txtMiktar);
}

/// What was typed for one model's label is no other model's.
void Tanim_Barkod::clearTyped()
{
    m_ui->txtAciklama->clear();
    for (const AskedBox &asked : std::as_const(m_asked))
        asked.box->clear();
    if (m_ui->OzelUrun->count() > 0)
        m_ui->OzelUrun->setCurrentIndex(0);
}

void Tanim_Barkod::clear()
{
    m_found.reset();
    for (QLineEdit *box : {m_ui->Model, m_ui->txtUruntipi, m_ui->txtMiktar, m_ui->txtAyar})
        box->clear();
    clearTyped();
    m_ui->Picture1->showFile({});
    m_ui->pBarkod->draw({});
    tellHiddenFields();
    updateButtons();
    m_ui->Model->setFocus();
}

/// While another code is being typed, what is on the screen is not its label.
void Tanim_Barkod::updateButtons()
{
    const bool stands = m_found && sameText(m_ui->Model->text(), m_found->etiket.Model);
    m_ui->cmdBarkod->setEnabled(stands);
    m_ui->cmdOnizleme->setEnabled(stands);
}

// The label type

const BarkodTipi *Tanim_Barkod::chosenType() const
{
    const int row = m_ui->BarkodTip->currentIndex() - 1; // the first is the fixed layout
    return row < 0 ? nullptr : &m_types[row];
}

/// Asks for what the type prints and the company's files do not have.
void Tanim_Barkod::typeChosen()
{
    const BarkodTipi *tip = chosenType();
    for (const AskedBox &asked : std::as_const(m_asked)) {
        const bool isAsked = tip != nullptr && uses(*tip, asked.alan);
        asked.label->setVisible(isAsked);
        asked.box->setVisible(isAsked);
    }
    m_ui->OzelUrun->clear();
    const bool special = tip != nullptr && !tip->ozelUrunler.isEmpty();
    if (special) {
        m_ui->OzelUrun->addItem(u"Modelin kendisi"_s);
        for (const OzelUrun &urun : tip->ozelUrunler)
            m_ui->OzelUrun->addItem((urun.kod + u"  "_s + urun.isim).trimmed());
    }
    m_ui->OzelUrunLabel->setVisible(special);
    m_ui->OzelUrun->setVisible(special);
    tellHiddenFields();
}

void Tanim_Barkod::tellHiddenFields()
{
    const BarkodTipi *tip = chosenType();
    const QStringList covered = tip == nullptr ? QStringList() : coveredFields(*tip);
    warn(covered.isEmpty() ? QString()
                           : u"Bu etiket tipinde barkodun altında kalan alanlar okunmaz: "_s +
                                 covered.join(u", "_s));
}

/// The line takes room only while it says something.
void Tanim_Barkod::warn(const QString &text)
{
    m_ui->uyari->setText(text);
    m_ui->uyari->setVisible(!text.isEmpty());
}

// Printing

/// A label on which the price is missing is worse than none.
bool Tanim_Barkod::hasPrices()
{
    const BarkodTipi *tip = chosenType();
    if (tip == nullptr)
        return true;
    const QList<SorulanAlan> missing = missingPrices(*tip, askedValues());
    if (missing.isEmpty())
        return true;
    m_context.messages.say(this,
                           u"%1 etiket tipi %2 alanını basar; değeri girilmelidir."_s.arg(
                               tip->BarkodTip_Ad, missing.first().baslik),
                           MessageIcon::Exclamation);
    for (const AskedBox &asked : std::as_const(m_asked)) {
        if (asked.alan == missing.first().alan)
            asked.box->setFocus(Qt::TabFocusReason);
    }
    return false;
}

QMap<QString, QString> Tanim_Barkod::askedValues() const
{
    QMap<QString, QString> values;
    for (const AskedBox &asked : m_asked)
        values[asked.alan] = asked.box->text();
    return values;
}

PrintDocument Tanim_Barkod::document() const
{
    Etiket etiket = m_found->etiket;
    etiket.Miktar = leadingNumber(m_ui->txtMiktar->text());
    etiket.Ayar = m_ui->txtAyar->text();
    etiket.Aciklama = m_ui->txtAciklama->text();
    const BarkodTipi *tip = chosenType();
    if (tip == nullptr)
        return etiketBelgesi(etiket);
    SablonVerileri veriler;
    veriler.firma = m_context.oturum.SirketAdi;
    if (const int special = m_ui->OzelUrun->currentIndex(); special > 0)
        veriler.ozelUrun = tip->ozelUrunler[special - 1];
    veriler.sorulan = askedValues();
    constexpr QSize largest(1200, 1200);
    if (tip->resim && !m_ui->Picture1->path().isEmpty())
        veriler.resim = loadPicture(m_ui->Picture1->path(), largest).image;
    return sablonBelgesi(etiket, *tip, veriler);
}

/// Once printed, the next model can be typed at once.
void Tanim_Barkod::print()
{
    if (!hasPrices() || !m_labels.print(this, document(), m_settings.YaziciAdi))
        return;
    m_ui->Model->setFocus();
    TumunuSec(*m_ui->Model);
}

void Tanim_Barkod::preview()
{
    if (hasPrices())
        m_context.viewer.show(this, document());
}

} // namespace kuyum
