#include "Tanim_Katalog.h"

#include "DocumentViewer.h"
#include "EntryControls.h"
#include "Guarded.h"
#include "KatalogModel.h"
#include "Numbers.h"
#include "Oturum.h"
#include "ReadingProgress.h"
#include "SaveOver.h"
#include "Theme.h"
#include "ui_Tanim_Katalog.h"
#include "WindowSize.h"

#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace kuyum {

Tanim_Katalog::Tanim_Katalog(const ScreenContext &context, QWidget *parent)
    : QDialog(parent, Qt::Window),
      m_context(context),
      m_store(context.oturum),
      m_ui(std::make_unique<Ui::Tanim_Katalog>()),
      m_model(new KatalogModel(this))
{
    m_ui->setupUi(this);
    fitToScreen(*this, QSize(1120, 720));
    Ondegerler();
    limitEntries();
    connectControls();
    EkranKapa();
}

Tanim_Katalog::~Tanim_Katalog() = default;

void Tanim_Katalog::Ondegerler()
{
    const TableDef table = m_context.oturum.Veritabani->tableDef(u"Katalog"_s);
    m_ui->Rapor->setUp(m_model, m_context.messages, table.textLimit(u"kataciklama"));
    QPalette quiet = palette();
    quiet.setColor(QPalette::WindowText, themeColors(quiet).muted);
    // While its catalogue is edited, the name cannot be typed in but must be read.
    quiet.setColor(QPalette::Disabled, QPalette::Text, themeColors(quiet).muted);
    for (QWidget *control : std::initializer_list<QWidget *>{m_ui->KatAdi, m_ui->kayitDurumu})
        control->setPalette(quiet);
    QPalette warning = palette();
    warning.setColor(QPalette::WindowText, themeColors(warning).mark);
    m_ui->uyari->setPalette(warning);
    // A choice that prints is a button, not a state.
    for (QRadioButton *choice : {m_ui->BaskiSekli_1, m_ui->BaskiSekli_2})
        choice->setAutoExclusive(false);
}

/// No box takes more than its field does, so that a save never refuses a text.
void Tanim_Katalog::limitEntries()
{
    const TableDef table = m_context.oturum.Veritabani->tableDef(u"Katalog"_s);
    const auto limit = [&table](QLineEdit *box, QStringView name) {
        if (const int longest = table.textLimit(name))
            box->setMaxLength(longest);
    };
    limit(m_ui->KatAdi, u"KatAdi");
    limit(m_ui->txtAciklama, u"kataciklama");
    keepNumeric(*m_ui->txtGram, m_context.messages);
    for (QLineEdit *box : {m_ui->KatAdi, m_ui->txtModel, m_ui->txtGram, m_ui->txtAciklama})
        selectOnEntry(*box);
}

/// An unexpected error ends the action, not the screen.
template <typename Action>
void Tanim_Katalog::bind(QAbstractButton *button, Action action)
{
    connect(button, &QAbstractButton::clicked, this,
            [this, action] { guarded(m_context.messages, this, action); });
}

void Tanim_Katalog::connectControls()
{
    bind(m_ui->cmdListe, [this] { pickCatalogue(); });
    bind(m_ui->cmdModel, [this] { ModelBul(); });
    bind(m_ui->cmdEkle, [this] { add(); });
    bind(m_ui->cmdKayit, [this] { save(); });
    bind(m_ui->cmdsil, [this] { removeCatalogue(); });
    bind(m_ui->cmdvazgec, [this] { Vazgec(); });
    bind(m_ui->cmdSon, [this] { reject(); });
    bind(m_ui->BaskiSekli_1, [this] { print(m_ui->BaskiSekli_1, Katalog_35); });
    bind(m_ui->BaskiSekli_2, [this] { print(m_ui->BaskiSekli_2, Katalog_46); });
    for (auto *button : findChildren<QPushButton *>())
        button->setAutoDefault(false); // Enter on a text must not press a button
    connect(m_ui->Rapor, &KatalogGrid::rowRemovalAsked, this,
            [this](int row) { guarded(m_context.messages, this, [&] { removeRow(row); }); });
    connect(m_ui->Rapor, &KatalogGrid::rowWanted, m_ui->txtModel,
            [this] { m_ui->txtModel->setFocus(Qt::TabFocusReason); });
    connect(m_ui->Rapor, &KatalogGrid::clicked, this, &Tanim_Katalog::showPicture);
    connect(m_ui->Rapor->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &Tanim_Katalog::showPicture);
}

// Keys

void Tanim_Katalog::keyPressEvent(QKeyEvent *event)
{
    // The steps after the one that was meant would save, list or close.
    if (event->isAutoRepeat() && (isEnter(*event) || event->key() == Qt::Key_Escape))
        return;
    const bool abandons = isEditing() || !m_ui->KatAdi->text().isEmpty();
    if (isEnter(*event))
        guarded(m_context.messages, this, [this] { enterPressed(); });
    else if (event->key() == Qt::Key_Escape && abandons)
        guarded(m_context.messages, this, [this] { Vazgec(); });
    else
        QDialog::keyPressEvent(event);
}

/// Enter goes on: from the name to its catalogue, from the model over weight
/// and remark to the adding. On a button it presses it.
void Tanim_Katalog::enterPressed()
{
    QWidget *from = focusWidget();
    if (from == m_ui->KatAdi)
        nameEntered();
    else if (from == m_ui->txtModel)
        ModelBul();
    else if (from == m_ui->txtGram)
        m_ui->txtAciklama->setFocus(Qt::TabFocusReason);
    else if (from == m_ui->txtAciklama)
        m_ui->cmdEkle->setFocus(Qt::TabFocusReason);
    else if (auto *button = qobject_cast<QAbstractButton *>(from))
        button->click();
}

// The two states

bool Tanim_Katalog::isEditing() const
{
    return m_ui->cmdKayit->isEnabled();
}

void Tanim_Katalog::setEditing(bool on)
{
    for (QWidget *control : std::initializer_list<QWidget *>{m_ui->KatAdi, m_ui->cmdListe})
        control->setEnabled(!on);
    for (QWidget *control : std::initializer_list<QWidget *>{
             m_ui->txtModel, m_ui->cmdModel, m_ui->txtGram, m_ui->txtAciklama, m_ui->cmdEkle,
             m_ui->Rapor, m_ui->cmdKayit, m_ui->cmdvazgec, m_ui->BaskiSekli})
        control->setEnabled(on);
    m_ui->cmdsil->setEnabled(on && m_opened.isStored());
}

void Tanim_Katalog::EkranAc()
{
    setEditing(true);
    m_ui->kayitDurumu->setText(m_opened.isStored() ? u"Kayıtlı"_s : u"Yeni katalog"_s);
    m_ui->txtModel->setFocus(Qt::TabFocusReason);
}

/// Back to the name, with everything emptied.
void Tanim_Katalog::EkranKapa()
{
    m_opened = {};
    m_model->fill({});
    clearEntry();
    m_ui->KatAdi->clear();
    m_ui->kayitDurumu->clear();
    tellRows();
    setEditing(false);
    m_ui->KatAdi->setFocus(Qt::TabFocusReason);
}

bool Tanim_Katalog::mayLeave()
{
    m_ui->Rapor->finishEdit();
    return !isEditing() || (collect() == m_opened && !hasChosen()) ||
           m_context.messages.ask(this, u"DEĞİŞİKLİKLER KAYIT EDİLMEDİ, VAZGEÇİLSİN Mİ ?"_s,
                                  MessageIcon::Exclamation, {}, MessageAnswer::No);
}

void Tanim_Katalog::Vazgec()
{
    if (mayLeave())
        EkranKapa();
}

void Tanim_Katalog::reject()
{
    if (mayLeave())
        QDialog::reject();
}

// Finding

void Tanim_Katalog::nameEntered()
{
    if (!m_ui->KatAdi->text().trimmed().isEmpty()) {
        KatalogBul(m_ui->KatAdi->text());
        return;
    }
    m_context.messages.say(this, u"BİR KATALOG ADI VERİN ...!"_s, MessageIcon::Exclamation);
    m_ui->KatAdi->setFocus(Qt::TabFocusReason);
}

void Tanim_Katalog::pickCatalogue()
{
    const LookupAnswer answer =
        m_context.openList(this, {u"Katalog Listesi"_s, m_ui->KatAdi->text().trimmed()});
    if (answer.Secilen.isEmpty())
        m_ui->KatAdi->setFocus(Qt::TabFocusReason);
    else
        KatalogBul(answer.Secilen);
}

void Tanim_Katalog::KatalogBul(const QString &KatAdi)
{
    m_loaded = m_store.oku(KatAdi);
    m_opened = m_store.KatalogBul(KatAdi);
    m_model->fill(m_opened);
    m_ui->KatAdi->setText(m_opened.KatAdi);
    tellRows();
    EkranAc();
    m_ui->Rapor->goTo(0);
}

/// How many rows there are, and how many more that cannot be shown.
void Tanim_Katalog::tellRows()
{
    const qsizetype kept = m_opened.keptRows.size();
    m_ui->uyari->setText(
        u"Modeli silinmiş %1 satır gösterilemiyor; kaydederken katalogda kalır."_s.arg(kept));
    m_ui->uyari->setVisible(kept > 0);
    const int rows = m_model->rowCount();
    m_ui->satirSayisi->setText(rows == 0 ? QString() : u"%1 model"_s.arg(rows));
}

// The rows

void Tanim_Katalog::ModelBul()
{
    const QString text = m_ui->txtModel->text().trimmed();
    // A label is scanned: the list would begin at its digits, with another model.
    if (const auto label = LabelLookup(m_context.oturum).find(text)) {
        takeLabel(*label, text);
        return;
    }
    const LookupAnswer answer = m_context.openList(this, {u"Model Listesi"_s, text, true});
    QList<KatalogSatiri> models;
    for (const LookupAnswer &one :
         answer.Secilenler.empty() ? std::vector<LookupAnswer>{answer} : answer.Secilenler) {
        if (one.SecilenTip <= 0)
            continue;
        if (const auto model = m_store.ModelBul(one.Secilen, one.SecilenTip))
            models.append(*model);
    }
    takeModels(models);
}

void Tanim_Katalog::takeLabel(const LabelledModel &label, const QString &text)
{
    const auto model = label.isFound() ? m_store.ModelBul(label.Model, label.TipID) : std::nullopt;
    if (model) {
        showModel(*model);
        return;
    }
    m_context.messages.say(this, label.whyNot() + u"\n\n"_s + text, MessageIcon::Exclamation);
    TumunuSec(*m_ui->txtModel);
}

/// One model goes into the entry boxes, several at once into the catalogue.
void Tanim_Katalog::takeModels(const QList<KatalogSatiri> &models)
{
    if (models.size() == 1) {
        showModel(models.first());
        return;
    }
    for (const KatalogSatiri &model : models) {
        KatalogSatiri satir = model;
        satir.katgram = typedGram(formatNumber(model.katgram, u"##0.00"));
        m_model->append(satir);
    }
    if (!models.isEmpty()) {
        tellRows();
        m_ui->Rapor->goTo(m_model->rowCount() - 1);
    }
    m_ui->txtModel->setFocus(Qt::TabFocusReason);
}

void Tanim_Katalog::showModel(const KatalogSatiri &model)
{
    m_chosen = model;
    m_ui->txtModel->setText(model.Model);
    m_ui->txtGram->setText(formatNumber(model.katgram, u"##0.00"));
    showPicture();
    m_ui->txtGram->setFocus(Qt::TabFocusReason);
    // The list has just closed: the focus comes with the window, which selects
    // nothing, and a weight that is typed would go behind the model's own.
    TumunuSec(*m_ui->txtGram);
}

/// A text that was typed over the model is no choice.
bool Tanim_Katalog::hasChosen() const
{
    return m_chosen && m_ui->txtModel->text() == m_chosen->Model;
}

void Tanim_Katalog::add()
{
    if (!hasChosen()) {
        m_context.messages.say(this, u"MODEL SECIMI YAPILMAMIS ...!"_s);
        m_ui->txtModel->setFocus(Qt::TabFocusReason);
        return;
    }
    KatalogSatiri satir = *m_chosen;
    satir.katgram = typedGram(m_ui->txtGram->text());
    satir.kataciklama = m_ui->txtAciklama->text();
    m_model->append(satir);
    clearEntry();
    m_ui->Rapor->goTo(m_model->rowCount() - 1);
    tellRows();
    m_ui->txtModel->setFocus(Qt::TabFocusReason);
}

void Tanim_Katalog::clearEntry()
{
    m_chosen.reset();
    for (QLineEdit *box : {m_ui->txtModel, m_ui->txtGram, m_ui->txtAciklama})
        box->clear();
    showPicture();
}

void Tanim_Katalog::removeRow(int row)
{
    if (!m_context.messages.ask(this, m_model->rowAt(row).Model + u" LİSTEDEN ÇIKARILACAK..."_s,
                                MessageIcon::Information, {}, MessageAnswer::No))
        return;
    m_model->removeRow(row);
    m_ui->Rapor->goTo(row);
    tellRows();
    showPicture();
}

/// Of the model that is being added, else of the grid's row.
void Tanim_Katalog::showPicture()
{
    const QModelIndex current = m_ui->Rapor->currentIndex();
    const bool entry = m_chosen && !m_ui->Rapor->hasFocus();
    QString path;
    if (entry || current.isValid()) {
        const KatalogSatiri &shown = entry ? *m_chosen : m_model->rowAt(current.row());
        path = modelPicturePath(m_context.oturum.ResimYolu, shown.Model, shown.KisaAD);
    }
    m_ui->Resim->showFile(path);
}

// Saving, removing, printing

Katalog Tanim_Katalog::collect() const
{
    return {m_opened.KatAdi, m_model->satirlar(), m_opened.keptRows, m_model->elleSirali()};
}

/// A model that was chosen but not added would be missing from what is saved.
void Tanim_Katalog::offerChosen()
{
    if (hasChosen() &&
        m_context.messages.ask(this, m_chosen->Model + u" LİSTEYE EKLENMEDİ. EKLENSİN Mİ ?"_s,
                               MessageIcon::Exclamation))
        add();
}

void Tanim_Katalog::save()
{
    m_ui->Rapor->finishEdit();
    offerChosen();
    const Katalog katalog = collect();
    if (katalog.satirlar.isEmpty()) {
        m_context.messages.say(this, u"KATALOGDA HİÇ MODEL YOK ...!"_s, MessageIcon::Exclamation);
        m_ui->txtModel->setFocus(Qt::TabFocusReason);
        return;
    }
    if (!store([&](LoadedRows &loaded) { m_store.save(katalog, loaded); }))
        return;
    m_context.messages.say(this, katalog.KatAdi + u" ISIMLI KATALOG OLUŞTURULMUŞTUR...!"_s);
    EkranKapa();
}

void Tanim_Katalog::removeCatalogue()
{
    if (!m_context.messages.ask(this, m_opened.KatAdi + u" SİLİNECEK. ONAYLIYORMUSUNUZ.?"_s,
                                MessageIcon::Exclamation, {}, MessageAnswer::No))
        return;
    if (store([this](LoadedRows &loaded) { m_store.remove(m_opened.KatAdi, loaded); }))
        EkranKapa();
}

/// Whether it was written; where another's catalogue stays, it is shown.
bool Tanim_Katalog::store(const std::function<void(LoadedRows &)> &write)
{
    const SaveEnd end = saveOver(m_context.messages, this, m_loaded, write);
    const QString KatAdi = m_opened.KatAdi;
    if (end == SaveEnd::Theirs || end == SaveEnd::Gone)
        EkranKapa();
    if (end == SaveEnd::Theirs)
        KatalogBul(KatAdi);
    return end == SaveEnd::Done;
}

void Tanim_Katalog::print(QAbstractButton *choice, Katalog_Baski form)
{
    choice->setChecked(false);
    m_ui->Rapor->finishEdit();
    const Katalog katalog = collect();
    if (katalog.satirlar.isEmpty()) {
        m_context.messages.say(this, u"KATALOGDA HİÇ MODEL YOK ...!"_s, MessageIcon::Exclamation);
        return;
    }
    const std::optional<PrintDocument> pages =
        makeWithProgress(this, u"KATALOG"_s, [&](const PictureProgress &progress) {
            return form(katalog, m_context.oturum.ResimYolu, progress);
        });
    if (!pages)
        return;
    m_context.viewer.show(this, *pages);
    if (m_context.viewer.wasPrinted())
        m_context.messages.say(this, u"BILGILER YAZICIYA GONDERILMISTIR..."_s, MessageIcon::None,
                               u"TARLEN"_s);
}

} // namespace kuyum
