#include "Tanim_Firma.h"

#include "EntryControls.h"
#include "Guarded.h"
#include "Numbers.h"
#include "ui_Tanim_Firma.h"

#include <QKeyEvent>
#include <QScreen>

using namespace Qt::StringLiterals;

namespace kuyum {

Tanim_Firma::Tanim_Firma(const ScreenContext &context, QWidget *parent)
    : TanimEkrani(context, parent),
      m_store(context.oturum),
      m_ulkeler(m_store.ulkeler()),
      m_ui(std::make_unique<Ui::Tanim_Firma>())
{
    m_ui->setupUi(this);
    setUpForm({.table = u"Firma"_s,
               .parts = partsOf(*m_ui),
               .keys = {m_ui->Firkod},
               .values = {m_ui->KisaAD, m_ui->FirAdi, m_ui->Yetkili, m_ui->Telefon, m_ui->Mail,
                          m_ui->Ulke, m_ui->txtAciklama},
               .numbers = {}});
    limitText(*m_ui->txtAciklama, u"Aciklama");
    constexpr int roomyWidth = 820;
    resize(qMin(roomyWidth, screen()->availableSize().width()), sizeHint().height());
}

Tanim_Firma::~Tanim_Firma() = default;

qint32 Tanim_Firma::Firkod() const
{
    return qint32(leadingNumber(m_ui->Firkod->text()));
}

/// A text that is no code is the beginning of a name: it opens the list there.
bool Tanim_Firma::hasKey() const
{
    return isNumeric(m_ui->Firkod->text());
}

bool Tanim_Firma::pickKey()
{
    const LookupAnswer answer =
        context().openList(this, {u"Firma Listesi"_s, m_ui->Firkod->text()});
    if (answer.SecilenNo <= 0)
        return false;
    m_ui->Firkod->setText(QString::number(answer.SecilenNo));
    return true;
}

TanimEkrani::Found Tanim_Firma::readRow()
{
    if (!numberFits(*m_ui->Firkod))
        return Found::Refused;
    m_ui->Firkod->setText(QString::number(Firkod()));
    const std::optional<Firma> firma = m_store.FirmaBul(Firkod());
    if (!firma)
        return Found::NewRow;
    DosyadanAta(*firma);
    return Found::Row;
}

void Tanim_Firma::DosyadanAta(const Firma &firma)
{
    m_ui->FirAdi->setText(firma.FirAdi);
    m_ui->Yetkili->setText(firma.Yetkili);
    m_ui->Telefon->setText(firma.Telefon);
    m_ui->Mail->setText(firma.Mail);
    m_ui->KisaAD->setText(firma.KisaAD);
    m_ui->txtAciklama->setText(firma.Aciklama);
    m_ui->Ulke->setCurrentIndex(-1);
    ComboSecNo(*m_ui->Ulke, firma.UlkeID);
    if (m_ui->Ulke->currentIndex() < 0 && firma.UlkeID != 0) {
        // A country that is gone stays the customer's until another is chosen.
        m_ui->Ulke->addItem(u"%1 (tanımsız ülke)"_s.arg(firma.UlkeID), firma.UlkeID);
        ComboSecNo(*m_ui->Ulke, firma.UlkeID);
    }
}

QList<RecordRows> Tanim_Firma::recordRows() const
{
    return m_store.kayit(Firkod());
}

bool Tanim_Firma::writeRow()
{
    return store([&](LoadedRows &loaded) {
        m_store.save({Firkod(), m_ui->KisaAD->text(), m_ui->FirAdi->text(), m_ui->Yetkili->text(),
                      m_ui->Telefon->text(), m_ui->Mail->text(), m_ui->Ulke->currentData().toInt(),
                      m_ui->txtAciklama->text()},
                     loaded);
    });
}

QString Tanim_Firma::savedWhat() const
{
    return m_ui->Firkod->text() + u" kodlu müşteri"_s;
}

bool Tanim_Firma::mayRemove()
{
    if (m_store.hasOrders(Firkod())) {
        context().messages.say(this, u"SİPARİŞ BİLGİSİ MEVCUT, SİLİNEMEZ..."_s,
                               MessageIcon::Critical, u"HATA"_s);
        return false;
    }
    return ask(m_ui->FirAdi->text() + u" SİLİNECEK..."_s, u"FİRMA KARTI SİLME"_s,
               MessageAnswer::No);
}

bool Tanim_Firma::removeRow()
{
    return store([this](LoadedRows &loaded) { m_store.remove(Firkod(), loaded); });
}

void Tanim_Firma::emptyForm()
{
    TanimEkrani::emptyForm();
    showCountries();
}

// The countries

void Tanim_Firma::showCountries()
{
    m_ui->Ulke->clear();
    for (const Ulke &ulke : std::as_const(m_ulkeler))
        m_ui->Ulke->addItem(ulke.ulke_ADI, ulke.ID);
}

void Tanim_Firma::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Insert && m_ui->Ulke->hasFocus())
        guarded(context().messages, this, [this] { addCountry(); });
    else if (event->key() == Qt::Key_Insert && m_ui->Firkod->hasFocus())
        guarded(context().messages, this, [this] { offerCode(); });
    else
        TanimEkrani::keyPressEvent(event);
}

/// The next free code stands in the key, selected: Enter takes it, typing
/// replaces it.
void Tanim_Firma::offerCode()
{
    m_ui->Firkod->setText(QString::number(m_store.bosKod()));
    goTo(m_ui->Firkod);
}

void Tanim_Firma::addCountry()
{
    const std::optional<QString> answer =
        context().messages.input(this, u"YENI BIR ULKE TANIMI GIRIN"_s, u"ULKE TANIMLAMA"_s, {});
    if (!answer || answer->trimmed().isEmpty())
        return;
    const qint32 ID = m_store.ulkeTanimla(answer->trimmed());
    m_ulkeler = m_store.ulkeler();
    showCountries();
    ComboSecNo(*m_ui->Ulke, ID);
}

} // namespace kuyum
