#include "Pass_Form.h"

#include "Backup.h"
#include "DamagedDatabase.h"
#include "DatabaseOpening.h"
#include "EntryControls.h"
#include "Guarded.h"
#include "LegacyPath.h"
#include "Oturum.h"
#include "RegistryPaths.h"
#include "RegistryStore.h"
#include "Schema.h"
#include "TakeOver.h"
#include "Theme.h"
#include "ui_Pass_Form.h"
#include "UsersStore.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace kuyum {

Pass_Form::Pass_Form(Oturum &oturum, Messages &messages, QWidget *parent)
    : QDialog(parent),
      m_oturum(oturum),
      m_messages(messages),
      m_ui(std::make_unique<Ui::Pass_Form>())
{
    m_ui->setupUi(this);
    paintBand();
    connectControls();
    layout()->setSizeConstraint(QLayout::SetFixedSize);
}

Pass_Form::~Pass_Form() = default;

void Pass_Form::paintBand()
{
    const ThemeColors colors = themeColors(palette());
    QPalette band = m_ui->band->palette();
    band.setColor(QPalette::Window, colors.header);
    band.setColor(QPalette::WindowText, QColor(0xe6, 0xde, 0xcc));
    m_ui->band->setPalette(band);

    QFont name = font();
    name.setPointSizeF(name.pointSizeF() * 2.4);
    name.setBold(true);
    m_ui->productName->setFont(name);
    QPalette gold = band;
    gold.setColor(QPalette::WindowText, QColor(0xf0, 0xcc, 0x6a));
    m_ui->productName->setPalette(gold);
    m_ui->version->setText(u"Sürüm "_s + QCoreApplication::applicationVersion());
}

void Pass_Form::connectControls()
{
    for (QWidget *field :
         {static_cast<QWidget *>(m_ui->Srkkod), static_cast<QWidget *>(m_ui->Kullanici),
          static_cast<QWidget *>(m_ui->SisTrhx), static_cast<QWidget *>(m_ui->Sifre)})
        field->installEventFilter(this);
    connect(m_ui->Srkkod, &QComboBox::activated, this,
            [this] { guarded(m_messages, this, [this] { Sirket_Bul(); }); });
    connect(m_ui->Sifre, &QLineEdit::textChanged, this,
            [this] { guarded(m_messages, this, [this] { cutPassword(); }); });
    connect(m_ui->SisTrhx, &DateBox::leftInvalid, this, [this] {
        m_messages.say(this, u"GIRDIGINIZ TARIH HATALI..."_s, MessageIcon::Critical);
        m_ui->SisTrhx->setDate(QDate::currentDate());
    });
    connect(m_ui->cmdGiris, &QPushButton::clicked, this,
            [this] { guarded(m_messages, this, [this] { SifreKontrol(); }); });
    connect(m_ui->cmdSon, &QPushButton::clicked, this, &QDialog::reject);
}

bool Pass_Form::load()
{
    m_oturum.GirisTamam = false;
    m_registry = openTakenOver(this, m_messages, m_oturum.kayitYolu, openRegistry);
    RegistryStore registry(*m_registry);
    if (registry.isEmpty()) {
        m_messages.say(this, u"Tanımlı Şirket Kaydına Rastlanmadı."_s, MessageIcon::Critical);
        return false;
    }
    for (const Sirket &company : registry.companies())
        m_ui->Srkkod->addItem(company.Srkadi, company.Srkkod);
    m_ui->SisTrhx->setDate(QDate::currentDate());
    if (m_ui->Srkkod->count() > 0) {
        m_ui->Srkkod->setCurrentIndex(0);
        guarded(m_messages, this, [this] { Sirket_Bul(); });
    }
    return true;
}

void Pass_Form::showEvent(QShowEvent *event)
{
    QDialog::showEvent(event);
    if (m_ui->Kullanici->currentIndex() >= 0)
        m_ui->Sifre->setFocus();
    else if (m_ui->Kullanici->count() > 0)
        m_ui->Kullanici->setFocus();
    else
        m_ui->Srkkod->setFocus();
}

bool Pass_Form::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QDialog::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key != Qt::Key_Return && key != Qt::Key_Enter)
        return QDialog::eventFilter(watched, event);
    if (watched == m_ui->Sifre)
        guarded(m_messages, this, [this] { SifreKontrol(); });
    else
        focusNextChild();
    return true;
}

void Pass_Form::closeCompany()
{
    m_ui->Kullanici->clear();
    m_oturum.Veritabani.reset();
}

void Pass_Form::Sirket_Bul()
{
    // A company that cannot be opened must not leave the one before open under
    // its name.
    closeCompany();
    const qint32 code = m_ui->Srkkod->currentData().toInt();
    const std::optional<Sirket> company = RegistryStore(*m_registry).find(code);
    if (!company.has_value()) {
        m_messages.say(this, QString::number(code) + u" Tanimli Degil."_s, MessageIcon::Critical);
        return;
    }
    const RegistryPaths paths(m_oturum.kayitYolu);
    m_oturum.SirketKodu = company->Srkkod;
    m_oturum.SirketAdi = company->Srkadi;
    m_oturum.DataYolu = company->DataYolu;
    m_oturum.ResimYolu = paths.resolve(company->ResimYolu);
    m_oturum.Transferyolu = paths.resolve(company->Transferyolu);
    if (openDatabase(paths.resolveDatabase(company->DataYolu)))
        fillUsers();
}

bool Pass_Form::openDatabase(const QString &path)
{
    const QString database = takenOverPath(path);
    // A legacy file would be taken over once more, as it was years ago.
    if (database != path && !QFileInfo::exists(database) && !backups(database).isEmpty())
        restore(database, u"Veri tabanı dosyası yerinde yok, ama yedekleri duruyor:"_s);
    try {
        m_oturum.Veritabani = openTakenOver(this, m_messages, path, openCompany);
        return true;
    } catch (const Cancelled &cancelled) {
        m_messages.say(this, cancelled.text(), MessageIcon::Information);
        return false;
    } catch (const DatabaseError &error) {
        m_messages.say(this, m_oturum.DataYolu + u"  ,BULUNAMADI..."_s, MessageIcon::Information,
                       u"DATA YOLU HATASI"_s);
        const bool missing = !QFileInfo(path).isFile();
        const bool canBeReplaced = missing ? !backups(database).isEmpty()
                                           : error.cause() == DatabaseError::Cause::FileDamaged;
        if (canBeReplaced)
            return restore(database,
                           missing ? u"Veri tabanı dosyası yerinde yok:"_s : error.text()) &&
                   openDatabase(path);
        // The file is there: the user learns why it did not open.
        if (!missing)
            sayUnexpected(m_messages, this, error);
        return false;
    }
}

bool Pass_Form::restore(const QString &database, const QString &trouble)
{
    const std::optional<QString> backup = offerBackup(this, m_messages, database, trouble);
    return backup.has_value() && restoreFromBackup(this, m_messages, database, *backup);
}

void Pass_Form::fillUsers()
{
    m_ui->Kullanici->addItems(UsersStore(m_oturum).activeNames());
    m_ui->Kullanici->setCurrentIndex(-1);
    ComboSec(*m_ui->Kullanici, u"Admin"_s);
}

void Pass_Form::cutPassword()
{
    const QString typed = m_ui->Sifre->text();
    if (typed.size() <= longestPassword)
        return;
    m_ui->Sifre->setText(typed.left(longestPassword));
    SifreKontrol();
}

void Pass_Form::SifreKontrol()
{
    const QString name = m_ui->Kullanici->currentText();
    if (name.isEmpty() || m_oturum.Veritabani == nullptr)
        return;
    const std::optional<Kullanici> user = UsersStore(m_oturum).find(name);
    if (!user.has_value()) {
        m_messages.say(this, u"KULLANICI SECIMI YAPINIZ..."_s, MessageIcon::Critical);
        return;
    }
    switch (checkPassword(*user, m_ui->Sifre->text())) {
    case PasswordCheck::CannotLogIn:
        return;
    case PasswordCheck::Wrong:
        m_messages.say(this, u"<<< GIRIS SIFRESI HATALI >>>    "_s, MessageIcon::Critical);
        m_ui->Sifre->setFocus();
        TumunuSec(*m_ui->Sifre);
        return;
    case PasswordCheck::Right:
        logIn(user->User_Name, user->User_ID);
        return;
    }
}

void Pass_Form::logIn(const QString &name, qint32 number)
{
    m_oturum.GirisTamam = true;
    m_oturum.KullaniciAdi = name;
    m_oturum.KullaniciNo = number;
    const QDate entered = m_ui->SisTrhx->date();
    m_oturum.CalismaTarihi = entered.isValid() ? entered : QDate::currentDate();
    accept();
}

} // namespace kuyum
