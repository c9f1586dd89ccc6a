#include "Giris_Siparis.h"

#include "EntryControls.h"
#include "Guarded.h"
#include "ModelEntry.h"
#include "Numbers.h"
#include "OrderCode.h"
#include "Oturum.h"
#include "SavedLine.h"
#include "ScannedNumber.h"
#include "SiparisModel.h"
#include "Theme.h"
#include "ui_Giris_Siparis.h"
#include "WindowSize.h"

#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace kuyum {

Giris_Siparis::Giris_Siparis(const ScreenContext &context, QSettings &settings,
                             OrderReports reports, QWidget *parent)
    : QDialog(parent, Qt::Window),
      m_context(context),
      m_settings(settings),
      m_reports(std::move(reports)),
      m_store(context.oturum),
      m_lookups(context.oturum),
      m_ui(std::make_unique<Ui::Giris_Siparis>()),
      m_model(new SiparisModel(this)),
      m_saved(new SavedLine(this))
{
    m_ui->setupUi(this);
    m_ui->Rapor->setSiparisModel(m_model);
    m_modelEntry = new ModelEntry(m_context, m_ui->Rapor, m_model);
    setUpLook();
    fillChoices();
    readSlipChoice();
    limitEntries();
    connectControls();
    connectGrid();
    TusKapa();
}

Giris_Siparis::~Giris_Siparis() = default;

void Giris_Siparis::setUpLook()
{
    // An order wants width and height; a quarter of the largest screens is enough.
    fitToScreen(*this, QSize(1500, 950));
    QPalette warning = m_ui->warningLine->palette();
    warning.setColor(QPalette::WindowText, themeColors(palette()).mark);
    m_ui->warningLine->setPalette(warning);
    m_ui->keptLinesNote->setPalette(warning);
    QFont bold = font();
    bold.setBold(true);
    m_ui->warningLine->setFont(bold);
    // What is shown only does not look like a box to type in.
    QPalette shown = palette();
    shown.setColor(QPalette::Base, shown.color(QPalette::Window));
    m_ui->Firkod->setPalette(shown);
    m_ui->KisaAD->setPalette(shown);
}

void Giris_Siparis::fillChoices()
{
    m_ui->Rapor->setColours(m_lookups.colours());
    m_model->setTypes(m_store.productTypes());
}

/// No box takes more than its field does, so that a save never refuses a text.
void Giris_Siparis::limitEntries()
{
    const Database &db = *m_context.oturum.Veritabani;
    const TableDef header = db.tableDef(u"SiparisB"_s);
    const TableDef line = db.tableDef(u"SiparisD"_s);
    const auto size = [](const TableDef &table, QStringView name) {
        const FieldDef *field = table.field(name);
        return field == nullptr || field->type != FieldType::Text ? 0 : field->size;
    };
    for (const auto &[box, name] :
         {std::pair{m_ui->Patent, u"Patent"_s}, std::pair{m_ui->Aciklama, u"Aciklama"_s}}) {
        if (const int limit = size(header, name); limit > 0)
            box->setMaxLength(limit);
        else
            box->setMaxLength(32767);
    }
    m_ui->Rapor->setLimits(size(line, u"SipModel"), size(line, u"SipAck"));
}

/// A button's action; an unexpected error ends the action, not the screen.
template <typename Action>
void Giris_Siparis::bind(QWidget *button, Action action)
{
    connect(static_cast<QPushButton *>(button), &QPushButton::clicked, this,
            [this, action] { guarded(m_context.messages, this, [&] { (this->*action)(); }); });
}

void Giris_Siparis::connectControls()
{
    bind(m_ui->cmdKayit, &Giris_Siparis::save);
    bind(m_ui->Command1, &Giris_Siparis::saveAsNew);
    bind(m_ui->cmdsil, &Giris_Siparis::removeOrder);
    bind(m_ui->cmdYazdir, &Giris_Siparis::print);
    for (const auto &[button, report] :
         {std::pair{m_ui->cmdTAS, &m_reports.tas}, std::pair{m_ui->CmdYmamul, &m_reports.ymamul}}) {
        connect(button, &QPushButton::clicked, this, [this, report] {
            guarded(m_context.messages, this, [&] { openReport(*report); });
        });
    }
    bind(m_ui->cmdListe, &Giris_Siparis::pickOrder);
    bind(m_ui->cmdvazgec, &Giris_Siparis::abandon);
    bind(m_ui->cmdSon, &Giris_Siparis::reject);
    bind(m_ui->SabitRenk, &Giris_Siparis::pickFixedColour);
    bind(m_ui->LabelAdet, &Giris_Siparis::nextAdet);
    for (QCheckBox *box : {m_ui->Check_Kisaad, m_ui->Check_Kod, m_ui->Check_AD, m_ui->Check_Resim})
        connect(box, &QCheckBox::clicked, this, &Giris_Siparis::keepSlipChoice);
    m_saved->standAboveButtons(*m_ui->layout);
    m_saved->goWith(*m_ui->Sipnum);
    keepNumeric(*m_ui->Sipnum, m_context.messages);
    m_ui->Sipnum->setMaxLength(orderNumberLength);
    const auto isOrderCode = [](const QString &text) { return readOrderCode(text).has_value(); };
    connect(new ScannedNumber(m_ui->Sipnum, isOrderCode), &ScannedNumber::complete, this,
            [this] { guarded(m_context.messages, this, [this] { numberEntered(); }); });
    keepNumeric(*m_ui->Ayar, m_context.messages);
    for (DateBox *date : {m_ui->SipTrh, m_ui->TesTrh})
        keepDate(*date, m_context.messages);
    connect(m_ui->FirAdi, &QLineEdit::textEdited, this, &Giris_Siparis::customerTyped);
    connect(m_ui->Check_HizliGiris, &QCheckBox::toggled, this,
            [this](bool on) { guarded(m_context.messages, this, [&] { setQuickEntry(on); }); });
}

void Giris_Siparis::connectGrid()
{
    connect(m_ui->Rapor, &SiparisGrid::rowRemovalAsked, this,
            [this](int row) { guarded(m_context.messages, this, [&] { removeRow(row); }); });
    connect(m_ui->Rapor, &SiparisGrid::abandoned, this,
            [this] { guarded(m_context.messages, this, [&] { abandon(); }); });
    connect(m_ui->Rapor->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex &current) {
                if (current.isValid())
                    ResimGoster(current.row(), PictureError::Skip);
            });
    // Whether the lines without a cell can be saved goes by their rows.
    connect(m_model, &SiparisModel::dataChanged, this, [this] {
        if (m_ui->keptLinesNote->isVisible())
            guarded(m_context.messages, this, [this] { tellKeptLines(); });
    });
    connect(m_modelEntry, &ModelEntry::modelTaken, this,
            [this](int row) { ResimGoster(row, PictureError::Tell); });
    connect(m_modelEntry, &ModelEntry::warning, this,
            [this](const QString &text) { showWarning(text.isEmpty() ? m_notice : text); });
}

// Keys

void Giris_Siparis::keyPressEvent(QKeyEvent *event)
{
    if (isEnter(*event))
        guarded(m_context.messages, this, [this] { enterPressed(); });
    else if (event->key() == Qt::Key_Escape && isEditing())
        guarded(m_context.messages, this, [this] { abandon(); });
    else if (!takeScanPastControls(event))
        QDialog::keyPressEvent(event);
}

/// In quick entry a label is scanned also when a button was clicked last: what
/// no control takes as typed goes into the grid, from the first digit on.
bool Giris_Siparis::takeScanPastControls(QKeyEvent *event)
{
    const bool digit = typesCharacter(*event) && isDecimalDigit(event->text().front());
    if (!digit || !m_ui->Check_HizliGiris->isChecked() || !isEditing() || m_ui->Rapor->hasFocus())
        return false;
    m_ui->Rapor->goToEmptyRow();
    m_ui->Rapor->setFocus(Qt::OtherFocusReason);
    QCoreApplication::sendEvent(m_ui->Rapor, event);
    return true;
}

/// Enter goes on: from the number to its order, from field to field, and from
/// the note into the grid. On a button it presses it.
void Giris_Siparis::enterPressed()
{
    const QList<std::pair<QWidget *, QWidget *>> way = {
        {m_ui->SipTrh, m_ui->FirAdi},   {m_ui->TesTrh, m_ui->Ayar},    {m_ui->Ayar, m_ui->Patent},
        {m_ui->Patent, m_ui->Aciklama}, {m_ui->Aciklama, m_ui->Rapor},
    };
    QWidget *from = focusWidget();
    if (from == m_ui->Sipnum)
        numberEntered();
    else if (from == m_ui->FirAdi)
        FirmaBul();
    else if (auto *button = qobject_cast<QAbstractButton *>(from))
        button->click();
    if (from == m_ui->Ayar && !karatFits())
        return;
    for (const auto &[here, next] : way) {
        if (from == here)
            next->setFocus(Qt::TabFocusReason);
    }
}

// States

bool Giris_Siparis::isEditing() const
{
    return m_ui->cmdKayit->isEnabled();
}

void Giris_Siparis::setEditing(bool on)
{
    for (QWidget *control : std::initializer_list<QWidget *>{m_ui->Sipnum, m_ui->cmdListe})
        control->setEnabled(!on);
    for (QWidget *control : std::initializer_list<QWidget *>{
             m_ui->SipTrh, m_ui->FirAdi, m_ui->TesTrh, m_ui->Ayar, m_ui->Patent, m_ui->Aciklama,
             m_ui->Rapor, m_ui->cmdvazgec, m_ui->cmdKayit, m_ui->cmdYazdir, m_ui->cmdTAS,
             m_ui->CmdYmamul})
        control->setEnabled(on);
    for (QWidget *control : std::initializer_list<QWidget *>{m_ui->cmdsil, m_ui->Command1})
        control->setEnabled(on && m_stored != 0);
}

/// Back to the order-number state, with everything emptied.
void Giris_Siparis::TusKapa()
{
    m_stored = 0;
    m_loaded = {};
    m_customer = {};
    m_keptLines.clear();
    m_notice.clear();
    m_ui->Rapor->abandonEdit();
    for (QLineEdit *box : {m_ui->Sipnum, m_ui->FirAdi, m_ui->Firkod, m_ui->KisaAD, m_ui->Ayar,
                           m_ui->Patent, m_ui->Aciklama})
        box->clear();
    m_ui->SipTrh->setDate(m_context.oturum.CalismaTarihi);
    m_ui->TesTrh->setDate(m_context.oturum.CalismaTarihi);
    Gridbosalt();
    m_ui->Resim->clear();
    m_modelEntry->forgetNotFound();
    for (QLabel *line : {m_ui->warningLine, m_ui->keptLinesNote}) {
        line->clear();
        line->hide();
    }
    m_opened = collect();
    setEditing(false);
    m_ui->Sipnum->setFocus();
}

void Giris_Siparis::TusAC()
{
    setEditing(true);
    m_saved->forget();
    m_opened = collect();
}

/// Whether something on the screen is not stored.
bool Giris_Siparis::hasChanges() const
{
    return isEditing() && (m_ui->Rapor->hasUnfinishedText() || !(collect() == m_opened));
}

bool Giris_Siparis::mayLeave()
{
    if (!hasChanges())
        return true;
    return m_context.messages.ask(this, u"DEĞİŞİKLİKLER KAYIT EDİLMEDİ, VAZGEÇİLSİN Mİ ?"_s,
                                  MessageIcon::Exclamation, {}, MessageAnswer::No);
}

void Giris_Siparis::abandon()
{
    if (mayLeave())
        TusKapa();
}

void Giris_Siparis::reject()
{
    if (mayLeave())
        QDialog::reject();
}

} // namespace kuyum
