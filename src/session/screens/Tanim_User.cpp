#include "Tanim_User.h"

#include "EntryControls.h"
#include "Guarded.h"
#include "Oturum.h"
#include "Passwords.h"
#include "Theme.h"
#include "TurkishText.h"
#include "ui_Tanim_User.h"
#include "WindowSize.h"

using namespace Qt::StringLiterals;

namespace kuyum {

Tanim_User::Tanim_User(const ScreenContext &context, QWidget *parent)
    : TanimEkrani(context, parent),
      m_store(context.oturum),
      m_ui(std::make_unique<Ui::Tanim_User>())
{
    m_ui->setupUi(this);
    fitToScreen(*this, QSize(860, 640));
    setUpControls();
    setUpForm({.table = u"Users"_s,
               .parts = partsOf(*m_ui),
               .keys = {m_ui->User_Adi},
               .values = {m_ui->User_sifresi, m_ui->Check_Yetki1, m_ui->Rapor},
               .numbers = {}});
    limitText(*m_ui->User_Adi, u"User_Name");
    limitText(*m_ui->User_sifresi, u"user_pass");
    // A longer one could be stored, but never be typed at the login.
    m_ui->User_sifresi->setMaxLength(std::min(m_ui->User_sifresi->maxLength(), longestPassword));
}

Tanim_User::~Tanim_User() = default;

void Tanim_User::setUpControls()
{
    QPalette quiet = palette();
    quiet.setColor(QPalette::WindowText, themeColors(quiet).muted);
    for (QLabel *label : {m_ui->sifreNotu, m_ui->yetkiSayisi, m_ui->bilgi})
        label->setPalette(quiet);
    connect(m_ui->Rapor, &YetkiGrid::toggleAsked, this,
            [this] { guarded(context().messages, this, [this] { toggleRight(); }); });
    connect(m_ui->Check_Yetki1, &QCheckBox::clicked, this,
            [this] { guarded(context().messages, this, [this] { extraRightClicked(); }); });
    connect(m_ui->User_Adi, &QLineEdit::textEdited, m_ui->bilgi, &QLabel::clear);
    connect(m_ui->User_sifresi, &QLineEdit::textChanged, this, &Tanim_User::passwordChanged);
    connect(m_ui->Check_Goster, &QCheckBox::toggled, this, [this](bool on) {
        m_ui->User_sifresi->setEchoMode(on ? QLineEdit::Normal : QLineEdit::Password);
    });
}

// Finding

bool Tanim_User::pickKey()
{
    const LookupAnswer answer =
        context().openList(this, {u"Kullanıcı Listesi"_s, m_ui->User_Adi->text()});
    if (answer.Secilen.isEmpty())
        return false;
    m_ui->User_Adi->setText(answer.Secilen);
    return true;
}

TanimEkrani::Found Tanim_User::readRow()
{
    const QString key = m_ui->User_Adi->text().trimmed();
    const std::optional<Kullanici> user = m_store.KullaniciBul(key);
    if (user && !isAdministrator() && user->User_ID != oturum().KullaniciNo) {
        context().messages.say(this, u"HATALI SECIM..."_s, MessageIcon::Exclamation, u"HATA"_s);
        goTo(m_ui->User_Adi);
        return Found::Refused;
    }
    showUser(user.value_or(Kullanici{.User_Name = key}));
    return user ? Found::Row : Found::NewRow;
}

void Tanim_User::showUser(const Kullanici &user)
{
    m_user = user;
    m_ui->User_Adi->setText(user.User_Name);
    m_ui->User_sifresi->setText(clearPassword(user).value_or(QString()));
    m_ui->Check_Yetki1->setChecked(user.user_yetki1);
    m_ui->Rapor->Yetkidoldur(MenuStore(oturum()).items(),
                             user.User_ID == 0 ? QList<qint32>() : m_store.rights(user.User_ID));
    countRights();
    m_ui->bilgi->setText(noteOn(user));
    m_shown = entry();
    passwordChanged();
}

/// A password that was changed can be read before it is saved; one that is
/// stored stays hidden.
void Tanim_User::passwordChanged()
{
    const bool changed = m_ui->User_sifresi->text() != m_shown.password;
    m_ui->Check_Goster->setEnabled(changed);
    if (!changed)
        m_ui->Check_Goster->setChecked(false);
}

QString Tanim_User::noteOn(const Kullanici &user) const
{
    QStringList notes;
    if (user.User_Sil)
        notes.append(u"Bu kullanıcı silinmiş olarak işaretli, giriş ekranında görünmez."_s);
    if (seesWholeMenu(user.User_Name))
        notes.append(u"Bu adla giren kullanıcı, işaretlere bakılmadan bütün menüleri görür."_s);
    if (clearPassword(user).value_or(QString()).size() > longestPassword)
        notes.append(u"Kayıtlı şifre girişte yazılamayacak kadar uzun. Kutuda ilk %1 karakteri "
                     "duruyor; bu kullanıcının girebilmesi için kaydedin."_s.arg(longestPassword));
    return notes.join(u"\n\n"_s);
}

void Tanim_User::emptyForm()
{
    TanimEkrani::emptyForm();
    m_user = {};
    m_shown = {};
    passwordChanged();
    m_ui->Check_Yetki1->setChecked(false);
    m_ui->Rapor->Yetkidoldur({}, {});
    m_ui->yetkiSayisi->clear();
    m_ui->bilgi->setText(std::exchange(m_done, {}));
}

bool Tanim_User::mayLeave()
{
    return !isEditing() || entry() == m_shown ||
           ask(u"DEĞİŞİKLİKLER KAYIT EDİLMEDİ, VAZGEÇİLSİN Mİ ?"_s, {}, MessageAnswer::No);
}

// The rights

/// In capitals, unlike in the menu.
bool Tanim_User::isAdministrator() const
{
    return sameText(oturum().KullaniciAdi, u"ADMIN");
}

void Tanim_User::toggleRight()
{
    const qint32 item = m_ui->Rapor->currentItem();
    const bool gives = !m_ui->Rapor->isMarked(m_ui->Rapor->currentIndex().row());
    if (gives && !isAdministrator() && !m_store.rights(oturum().KullaniciNo).contains(item)) {
        complain(u"SİZDE OLMAYAN BİR YETKİYİ VEREMEZSİNİZ..."_s, m_ui->Rapor);
        return;
    }
    m_ui->Rapor->toggle();
    countRights();
}

void Tanim_User::extraRightClicked()
{
    if (!m_ui->Check_Yetki1->isChecked() || isAdministrator())
        return;
    const auto self = m_store.KullaniciBul(QString::number(oturum().KullaniciNo));
    if (self && self->user_yetki1)
        return;
    m_ui->Check_Yetki1->setChecked(false);
    complain(u"SİZDE OLMAYAN BİR YETKİYİ VEREMEZSİNİZ..."_s, m_ui->Check_Yetki1);
}

void Tanim_User::countRights()
{
    m_ui->yetkiSayisi->setText(u"%1 menü açık"_s.arg(m_ui->Rapor->marked().size()));
}

bool Tanim_User::isLastAdministrator()
{
    return m_store.administrators() == QList<qint32>{m_user.User_ID};
}

// Saving and removing

Tanim_User::Entry Tanim_User::entry() const
{
    return {m_ui->User_sifresi->text(), m_ui->Check_Yetki1->isChecked(), m_ui->Rapor->marked()};
}

void Tanim_User::complain(const QString &text, QWidget *control)
{
    warn(text);
    goTo(control);
}

bool Tanim_User::mayBeWritten(const QString &password, const QList<qint32> &rights)
{
    const std::optional<qsizetype> unstorable = firstUnstorable(password);
    if (password.trimmed().isEmpty())
        complain(u"KULLANICI ŞİFRESİNİ BOŞ BIRAKMAYIN..."_s, m_ui->User_sifresi);
    else if (unstorable)
        complain(u"ŞİFRENİN %1. KARAKTERİ BU YERDE SAKLANAMIYOR, YERİNE BAŞKASINI YAZIN..."_s.arg(
                     *unstorable + 1),
                 m_ui->User_sifresi);
    else if (m_user.User_ID == 0 && m_store.find(m_user.User_Name))
        complain(u"BU ADDA BİR KULLANICI VAR, BAŞKA BİR AD VERİN..."_s, m_ui->User_sifresi);
    else if (!seesWholeMenu(m_user.User_Name) && !rights.contains(userMenu) &&
             isLastAdministrator())
        complain(u"KULLANICI TANIMLARINA GİREBİLEN BAŞKA KULLANICI YOK, BU YETKİ KALDIRILAMAZ..."_s,
                 m_ui->Rapor);
    else
        return true;
    return false;
}

QList<RecordRows> Tanim_User::recordRows() const
{
    return UsersStore(oturum()).kayit(m_ui->User_Adi->text().trimmed());
}

bool Tanim_User::writeRow()
{
    const Entry typed = entry();
    if (!mayBeWritten(typed.password, typed.rights))
        return false;
    Kullanici user = m_user;
    user.user_pass = Sifrele(typed.password);
    user.user_yetki1 = typed.user_yetki1;
    if (!store([&](LoadedRows &loaded) { m_store.save(user, typed.rights, loaded); }))
        return false;
    m_done = u"Yetkiler kullanıcının bir sonraki girişinde geçerli olur."_s;
    return true;
}

QString Tanim_User::savedWhat() const
{
    return m_user.User_Name + u" kullanıcısı"_s;
}

bool Tanim_User::mayRemove()
{
    if (isAdministrator() && m_user.User_ID == oturum().KullaniciNo)
        warn(u"KENDİ KAYDINIZI SİLEMEZSİNİZ..."_s);
    else if (isLastAdministrator())
        warn(u"KULLANICI TANIMLARINA GİREBİLEN BAŞKA KULLANICI YOK, BU KULLANICI SİLİNEMEZ..."_s);
    else
        return ask(u"KULLANICI TANIMI SILINECEK ?"_s, {}, MessageAnswer::No);
    return false;
}

bool Tanim_User::removeRow()
{
    if (!store([this](LoadedRows &loaded) { m_store.remove(m_user.User_ID, loaded); }))
        return false;
    m_done = m_user.User_Name + u" silindi."_s;
    return true;
}

} // namespace kuyum
