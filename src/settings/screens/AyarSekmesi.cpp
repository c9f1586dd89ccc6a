#include "AyarSekmesi.h"

#include "EntryControls.h"
#include "Guarded.h"
#include "NumberRange.h"
#include "Numbers.h"
#include "Printers.h"
#include "RegistryPaths.h"
#include "SaveOver.h"
#include "Theme.h"
#include "ui_AyarSekmesi.h"
#include "UsersStore.h"

#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QFileDialog>
#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace kuyum {

AyarSekmesi::AyarSekmesi(const ScreenContext &context, const ParametreServices &services,
                         QWidget *parent)
    : QWidget(parent),
      m_context(context),
      m_services(services),
      m_store(context.oturum),
      m_ui(std::make_unique<Ui::AyarSekmesi>())
{
    m_ui->setupUi(this);
    setUpBoxes();
    connectControls();
}

AyarSekmesi::~AyarSekmesi() = default;

void AyarSekmesi::setUpBoxes()
{
    m_ui->YaziciAdi->addItems(m_services.printers.installed());
    // A completed name would stand in the way of one that is typed freely.
    m_ui->YaziciAdi->setCompleter(nullptr);
    for (QLineEdit *box :
         {m_ui->YeniYol, m_ui->ResimyoluX, m_ui->Transferyolu, m_ui->txtsabitayar, m_ui->TeraziTip,
          m_ui->ComportID, m_ui->comportST, m_ui->YaziciAdi->lineEdit()})
        selectOnEntry(*box);
    for (QWidget *watched : std::initializer_list<QWidget *>{m_ui->YeniYol, m_ui->ResimyoluX,
                                                             m_ui->Transferyolu, m_ui->YaziciAdi})
        watched->installEventFilter(this);
    // The tab control's own ground shows through.
    m_ui->alan->viewport()->setAutoFillBackground(false);
    m_ui->icerik->setAutoFillBackground(false);
    QPalette quiet = palette();
    quiet.setColor(QPalette::WindowText, themeColors(quiet).muted);
    m_ui->yolNotu->setPalette(quiet);
    QPalette warning = palette();
    warning.setColor(QPalette::WindowText, themeColors(warning).mark);
    for (QLabel *label : {m_ui->uyari, m_ui->kayitNotu})
        label->setPalette(warning);
}

void AyarSekmesi::connectControls()
{
    keepNumeric(*m_ui->TeraziTip, m_context.messages);
    keepNumeric(*m_ui->txtsabitayar, m_context.messages);
    for (QLineEdit *box : {m_ui->YeniYol, m_ui->ResimyoluX, m_ui->Transferyolu, m_ui->txtsabitayar,
                           m_ui->TeraziTip, m_ui->ComportID, m_ui->comportST})
        connect(box, &QLineEdit::textChanged, this, &AyarSekmesi::edited);
    connect(m_ui->YaziciAdi, &QComboBox::currentTextChanged, this, &AyarSekmesi::edited);
    for (const QLineEdit *box : {m_ui->ResimyoluX, m_ui->Transferyolu})
        connect(box, &QLineEdit::editingFinished, this, &AyarSekmesi::tellMissingFolders);
    // The tab scrolls on a small screen; by itself only after the Tab key.
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) {
        if (now != nullptr && m_ui->icerik->isAncestorOf(now))
            m_ui->alan->ensureWidgetVisible(now);
    });
    const std::initializer_list<std::pair<QToolButton *, QLineEdit *>> buttons = {
        {m_ui->cmdYeniYol, m_ui->YeniYol},
        {m_ui->cmdResimyolu, m_ui->ResimyoluX},
        {m_ui->cmdTransferyolu, m_ui->Transferyolu}};
    for (const auto &[button, box] : buttons) {
        connect(button, &QToolButton::clicked, this,
                [this, box = box] { guarded(m_context.messages, this, [&] { browse(*box); }); });
    }
}

// What is stored

void AyarSekmesi::load()
{
    m_sirket.reset();
    m_ayarlar.reset();
    guarded(m_context.messages, this, [this] { showCompany(); });
    guarded(m_context.messages, this, [this] { showSettings(); });
    tellMissingFolders();
}

void AyarSekmesi::showCompany()
{
    m_ui->klasorler->setEnabled(false);
    for (QLineEdit *box : {m_ui->YeniYol, m_ui->ResimyoluX, m_ui->Transferyolu})
        box->clear();
    m_loadedCompany = m_store.sirketiOku();
    m_sirket = m_store.sirket();
    if (!m_sirket.has_value()) {
        m_context.messages.say(this, u"ŞİRKET KAYITLI DEĞİL..."_s, MessageIcon::Critical,
                               u"HATA"_s);
        return;
    }
    m_ui->klasorler->setEnabled(true);
    m_ui->YeniYol->setText(m_sirket->DataYolu);
    m_ui->ResimyoluX->setText(m_sirket->ResimYolu);
    m_ui->Transferyolu->setText(m_sirket->Transferyolu);
}

void AyarSekmesi::showSettings()
{
    for (QWidget *group : std::initializer_list<QWidget *>{m_ui->etiket, m_ui->terazi})
        group->setEnabled(false);
    for (QLineEdit *box : {m_ui->TeraziTip, m_ui->ComportID, m_ui->comportST, m_ui->txtsabitayar})
        box->clear();
    m_ui->YaziciAdi->setCurrentText({});
    m_loadedSettings = m_store.ayarlariOku();
    m_ayarlar = m_store.ayarlar();
    m_ui->kayitNotu->setVisible(!m_ayarlar.has_value());
    if (!m_ayarlar.has_value())
        return;
    for (QWidget *group : std::initializer_list<QWidget *>{m_ui->etiket, m_ui->terazi})
        group->setEnabled(true);
    const TableDef XXX = m_context.oturum.Veritabani->tableDef(u"XXX"_s);
    for (QLineEdit *box : {m_ui->comportST, m_ui->YaziciAdi->lineEdit()}) {
        const bool printer = box != m_ui->comportST;
        if (const int longest = XXX.textLimit(printer ? u"YaziciAdi"_s : u"comportST"_s))
            box->setMaxLength(longest);
    }
    showNumbers();
    m_ui->comportST->setText(m_ayarlar->comportST);
    // Also one that is not installed: it may be so on another workstation.
    m_ui->YaziciAdi->setCurrentText(m_ayarlar->YaziciAdi);
    // Texts longer than their boxes are read from their beginning.
    for (QLineEdit *box : {m_ui->comportST, m_ui->YaziciAdi->lineEdit()})
        box->setCursorPosition(0);
}

void AyarSekmesi::showNumbers()
{
    m_ui->TeraziTip->setText(plainNumber(m_ayarlar->TeraziTip));
    m_ui->ComportID->setText(plainNumber(m_ayarlar->ComportID));
    m_ui->txtsabitayar->setText(plainNumber(m_ayarlar->sabitayar));
}

Sirket AyarSekmesi::typedPaths() const
{
    Sirket sirket = m_sirket.value_or(Sirket());
    sirket.DataYolu = m_ui->YeniYol->text();
    sirket.ResimYolu = m_ui->ResimyoluX->text();
    sirket.Transferyolu = m_ui->Transferyolu->text();
    return sirket;
}

Ayarlar AyarSekmesi::typedSettings() const
{
    return {leadingNumber(m_ui->TeraziTip->text()), leadingNumber(m_ui->ComportID->text()),
            m_ui->comportST->text(), m_ui->YaziciAdi->currentText(),
            leadingNumber(m_ui->txtsabitayar->text())};
}

bool AyarSekmesi::degisti() const
{
    const auto samePaths = [](const Sirket &a, const Sirket &b) {
        return a.DataYolu == b.DataYolu && a.ResimYolu == b.ResimYolu &&
               a.Transferyolu == b.Transferyolu;
    };
    return (m_sirket.has_value() && !samePaths(*m_sirket, typedPaths())) ||
           (m_ayarlar.has_value() && (*m_ayarlar != typedSettings() || numbersTyped()));
}

/// Also what is no number, and would be read as the one that is stored.
bool AyarSekmesi::numbersTyped() const
{
    return m_ui->TeraziTip->text() != plainNumber(m_ayarlar->TeraziTip) ||
           m_ui->ComportID->text() != plainNumber(m_ayarlar->ComportID) ||
           m_ui->txtsabitayar->text() != plainNumber(m_ayarlar->sabitayar);
}

bool AyarSekmesi::kaydedilebilir() const
{
    return m_sirket.has_value() || m_ayarlar.has_value();
}

// Saving

bool AyarSekmesi::kaydet()
{
    try {
        if (m_ayarlar.has_value()) {
            if (!numbersFit())
                return false;
            const SaveEnd end =
                saveOver(m_context.messages, this, m_loadedSettings,
                         [this](LoadedRows &loaded) { m_store.kaydet(typedSettings(), loaded); });
            if (end == SaveEnd::Theirs || end == SaveEnd::Gone)
                showSettings();
            if (end != SaveEnd::Done)
                return false;
            m_ayarlar = m_store.ayarlar();
            if (m_ayarlar.has_value())
                showNumbers(); // an empty box was saved as 0
        }
        return !m_sirket.has_value() || savePaths();
    } catch (const std::exception &error) {
        m_context.messages.say(this, QString::fromUtf8(error.what()));
        return false;
    }
}

/// The new database is opened beside the one that is open, which stays in work
/// until the new one and the registry are in order.
bool AyarSekmesi::savePaths()
{
    const Sirket yollar = typedPaths();
    std::unique_ptr<Database> yeni;
    if (!m_store.acikOlan(yollar.DataYolu)) {
        try {
            yeni = m_services.openCompany(this, m_store.veriDosyasi(yollar.DataYolu));
        } catch (const std::exception &) {
            m_ui->YeniYol->setFocus(Qt::TabFocusReason);
            throw;
        }
        if (!mayOpen(*yeni))
            return false;
    }
    const bool another = yeni != nullptr;
    const SaveEnd end =
        saveOver(m_context.messages, this, m_loadedCompany,
                 [&](LoadedRows &loaded) { m_store.yollariDegistir(yollar, yeni, loaded); });
    if (end == SaveEnd::Theirs || end == SaveEnd::Gone)
        showCompany();
    if (end != SaveEnd::Done)
        return false;
    m_sirket = yollar;
    tellMissingFolders();
    if (another)
        Q_EMIT companyChanged();
    return true;
}

/// Whoever changed to a database without users would be shut out at the next
/// start.
bool AyarSekmesi::mayOpen(Database &db)
{
    return ParametreStore::girisYapilabilir(db) ||
           m_context.messages.ask(this,
                                  u"BU VERİ TABANINDA GİRİŞ YAPABİLECEK BİR KULLANICI YOK. PROGRAM "
                                  "BİR DAHA AÇILDIĞINDA GİRİŞ YAPILAMAZ.\n\nYİNE DE BU VERİ "
                                  "TABANINA GEÇİLSİN Mİ ?"_s,
                                  MessageIcon::Exclamation, {}, MessageAnswer::No);
}

bool AyarSekmesi::numbersFit()
{
    const std::initializer_list<QLineEdit *> numbers = {m_ui->txtsabitayar, m_ui->TeraziTip,
                                                        m_ui->ComportID};
    return std::all_of(numbers.begin(), numbers.end(),
                       [this](QLineEdit *box) { return numberFits(*box); });
}

bool AyarSekmesi::numberFits(QLineEdit &box)
{
    const TableDef XXX = m_context.oturum.Veritabani->tableDef(u"XXX"_s);
    const QString name = &box == m_ui->txtsabitayar ? u"sabitayar"_s : box.objectName();
    const FieldDef *field = XXX.field(name);
    QString why;
    if (!box.text().trimmed().isEmpty() && !isNumeric(box.text()))
        why = u"bir sayı olmalıdır."_s;
    else if (field != nullptr)
        why = whyNumberDoesNotFit(*field, leadingNumber(box.text()));
    if (why.isEmpty())
        return true;
    m_context.messages.say(this, box.accessibleName() + u' ' + why, MessageIcon::Exclamation);
    box.setFocus(Qt::TabFocusReason);
    return false;
}

// The folders

void AyarSekmesi::browse(QLineEdit &box)
{
    const QString here = box.text().trimmed().isEmpty() ? m_context.oturum.kayitYolu
                                                        : m_store.veriDosyasi(box.text());
    const bool database = &box == m_ui->YeniYol;
    const QString chosen =
        database
            ? QFileDialog::getOpenFileName(this, u"Veri tabanı seç"_s, here,
                                           u"Veri tabanları (*.kuyum *.mdb);;Bütün dosyalar (*)"_s)
            : QFileDialog::getExistingDirectory(this, u"Klasör seç"_s, here);
    if (chosen.isEmpty())
        return;
    box.setText(QDir::toNativeSeparators(chosen));
    box.setFocus(Qt::TabFocusReason);
    tellMissingFolders();
}

/// A missing folder is told, not refused: a network drive may come back.
void AyarSekmesi::tellMissingFolders()
{
    const RegistryPaths paths(m_context.oturum.kayitYolu);
    QStringList missing;
    for (const QLineEdit *box : {m_ui->ResimyoluX, m_ui->Transferyolu}) {
        if (!box->text().trimmed().isEmpty() && !QDir(paths.resolve(box->text())).exists())
            missing.append(box->accessibleName() + u" bulunamadı."_s);
    }
    m_ui->uyari->setText(missing.join(u"  "_s));
    m_ui->uyari->setVisible(!missing.isEmpty());
}

// Keys

QList<QWidget *> AyarSekmesi::boxes() const
{
    return {m_ui->YeniYol,      m_ui->ResimyoluX, m_ui->Transferyolu, m_ui->YaziciAdi,
            m_ui->txtsabitayar, m_ui->TeraziTip,  m_ui->ComportID,    m_ui->comportST};
}

void AyarSekmesi::focusFirst()
{
    for (QWidget *box : boxes()) {
        if (box->isEnabled()) {
            box->setFocus(Qt::TabFocusReason);
            return;
        }
    }
}

bool AyarSekmesi::goOn()
{
    const QList<QWidget *> all = boxes();
    for (qsizetype next = all.indexOf(focusWidget()) + 1; next < all.size(); ++next) {
        if (all[next]->isEnabled()) {
            all[next]->setFocus(Qt::TabFocusReason);
            return true;
        }
    }
    return false;
}

bool AyarSekmesi::eventFilter(QObject *watched, QEvent *event)
{
    // The wheel that scrolls the tab must not choose another printer on its way.
    if (event->type() == QEvent::Wheel && watched == m_ui->YaziciAdi &&
        !m_ui->YaziciAdi->hasFocus()) {
        event->ignore();
        return true;
    }
    auto *box = qobject_cast<QLineEdit *>(watched);
    if (box != nullptr && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent *>(event)->key() == Qt::Key_F4) {
        guarded(m_context.messages, this, [&] { browse(*box); });
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace kuyum
