#include "Tanim_Kalip.h"

#include "EntryControls.h"
#include "Guarded.h"
#include "Oturum.h"
#include "PictureFiles.h"
#include "ui_Tanim_Kalip.h"
#include "WindowSize.h"

using namespace Qt::StringLiterals;

namespace kuyum {

Tanim_Kalip::Tanim_Kalip(const ScreenContext &context, const CameraOpener &openCamera,
                         QWidget *parent)
    : TanimEkrani(context, parent),
      m_store(context.oturum),
      m_ui(std::make_unique<Ui::Tanim_Kalip>())
{
    m_ui->setupUi(this);
    fitToScreen(*this, QSize(600, 540));
    m_picture = new ResimAlani({m_ui->KalipResim, m_ui->cmdDosya, m_ui->cmdCek, m_ui->ResimSil},
                               context.messages, this);
    m_picture->setCamera(openCamera, u"KALIP CEK"_s);
    connect(m_picture, &ResimAlani::removalAsked, this,
            [this] { guarded(this->context().messages, this, [this] { ResimSil(); }); });
    setUpForm({.table = u"Kalip"_s,
               .parts = partsOf(*m_ui),
               .keys = {m_ui->KalipKodu},
               .values = {m_ui->KalipAck, m_ui->KalipDur},
               .numbers = {},
               .whileEditing = {m_ui->KalipResim, m_ui->cmdDosya, m_ui->cmdCek, m_ui->ResimSil}});
}

Tanim_Kalip::~Tanim_Kalip() = default;

bool Tanim_Kalip::pickKey()
{
    const LookupAnswer answer =
        context().openList(this, {u"Kalip Listesi"_s, m_ui->KalipKodu->text()});
    if (answer.Secilen.isEmpty())
        return false;
    m_ui->KalipKodu->setText(answer.Secilen);
    return true;
}

TanimEkrani::Found Tanim_Kalip::readRow()
{
    const std::optional<Kalip> kalip = m_store.KalipBul(m_ui->KalipKodu->text());
    if (!kalip)
        return Found::NewRow;
    m_ui->KalipKodu->setText(kalip->KalipKodu);
    m_ui->KalipAck->setText(kalip->KalipAck);
    m_ui->KalipAck->setCursorPosition(0);
    showWhereabouts(kalip->KalipDur);
    m_picture->ResimGoster(picturePath());
    return Found::Row;
}

/// A mold that is in neither place stays so until the user chooses one.
void Tanim_Kalip::showWhereabouts(const QString &KalipDur)
{
    m_storedDur = KalipDur;
    m_ui->KalipDur->setCurrentIndex(-1);
    ComboSec(*m_ui->KalipDur, KalipDur);
}

QList<RecordRows> Tanim_Kalip::recordRows() const
{
    return m_store.kayit(m_ui->KalipKodu->text());
}

bool Tanim_Kalip::writeRow()
{
    const bool chosen = m_ui->KalipDur->currentIndex() >= 0;
    const Kalip kalip{m_ui->KalipKodu->text(), m_ui->KalipAck->text(),
                      chosen ? m_ui->KalipDur->currentText() : m_storedDur};
    if (!store([&](LoadedRows &loaded) { m_store.save(kalip, loaded); }))
        return false;
    if (m_ui->KalipResim->holdsPicture()) {
        m_picture->ResimKaydet(
            [this] { return moldPictureTarget(oturum().ResimYolu, m_ui->KalipKodu->text()); });
    }
    return true;
}

QString Tanim_Kalip::savedWhat() const
{
    return m_ui->KalipKodu->text() + u" kalıbı"_s;
}

bool Tanim_Kalip::mayRemove()
{
    return ask(m_ui->KalipKodu->text() + u" SİLİNECEK. ONAYLIYORMUSUNUZ.?"_s, {},
               MessageAnswer::No);
}

bool Tanim_Kalip::removeRow()
{
    return store([this](LoadedRows &loaded) { m_store.remove(m_ui->KalipKodu->text(), loaded); });
}

void Tanim_Kalip::emptyForm()
{
    TanimEkrani::emptyForm();
    m_storedDur.clear();
    m_ui->KalipResim->showStored({});
}

QString Tanim_Kalip::picturePath() const
{
    return moldPicturePath(oturum().ResimYolu, m_ui->KalipKodu->text());
}

void Tanim_Kalip::ResimSil()
{
    m_picture->ResimSil(m_ui->KalipKodu->text().trimmed(), [this] { return picturePath(); });
}

} // namespace kuyum
