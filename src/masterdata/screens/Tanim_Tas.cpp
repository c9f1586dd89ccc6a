#include "Tanim_Tas.h"

#include "EntryControls.h"
#include "ui_Tanim_Tas.h"

using namespace Qt::StringLiterals;

namespace kuyum {

Tanim_Tas::Tanim_Tas(const ScreenContext &context, QWidget *parent)
    : TanimEkrani(context, parent),
      m_store(context.oturum),
      m_currencies(m_store.birimler()),
      m_ui(std::make_unique<Ui::Tanim_Tas>())
{
    m_ui->setupUi(this);
    setUpForm({.table = u"Tas"_s,
               .parts = partsOf(*m_ui),
               .keys = {m_ui->Taskodu},
               .values = {m_ui->TasFiyati, m_ui->TasBirimi, m_ui->TasKatsayi},
               .numbers = {m_ui->TasFiyati, m_ui->TasKatsayi}});
}

Tanim_Tas::~Tanim_Tas() = default;

bool Tanim_Tas::pickKey()
{
    const LookupAnswer answer = context().openList(this, {u"Tas Listesi"_s, m_ui->Taskodu->text()});
    if (answer.Secilen.isEmpty())
        return false;
    m_ui->Taskodu->setText(answer.Secilen);
    return true;
}

TanimEkrani::Found Tanim_Tas::readRow()
{
    const std::optional<Tas> tas = m_store.TasBul(m_ui->Taskodu->text());
    if (!tas)
        return Found::NewRow;
    m_ui->Taskodu->setText(tas->Taskodu);
    showNumber(*m_ui->TasFiyati, tas->TasFiyati, u"##0.00");
    showCurrency(tas->TasBirimi);
    showNumber(*m_ui->TasKatsayi, tas->TasKatsayi, u"#0.000000");
    return Found::Row;
}

/// A currency that is no longer defined stays the stone's own until the user
/// chooses another.
void Tanim_Tas::showCurrency(const QString &TasBirimi)
{
    m_ui->TasBirimi->setCurrentIndex(-1);
    ComboSec(*m_ui->TasBirimi, TasBirimi);
    if (m_ui->TasBirimi->currentIndex() < 0 && !TasBirimi.isEmpty()) {
        m_ui->TasBirimi->addItem(TasBirimi);
        ComboSec(*m_ui->TasBirimi, TasBirimi);
    }
}

QList<RecordRows> Tanim_Tas::recordRows() const
{
    return m_store.kayit(m_ui->Taskodu->text());
}

bool Tanim_Tas::writeRow()
{
    return store([&](LoadedRows &loaded) {
        m_store.save({m_ui->Taskodu->text(), number(*m_ui->TasFiyati),
                      m_ui->TasBirimi->currentText(), number(*m_ui->TasKatsayi)},
                     loaded);
    });
}

QString Tanim_Tas::savedWhat() const
{
    return m_ui->Taskodu->text() + u" taşı"_s;
}

bool Tanim_Tas::mayRemove()
{
    return ask(m_ui->Taskodu->text() + u" SİLİNECEK. ONAYLIYORMUSUNUZ.?"_s, {}, MessageAnswer::No);
}

bool Tanim_Tas::removeRow()
{
    return store([this](LoadedRows &loaded) { m_store.remove(m_ui->Taskodu->text(), loaded); });
}

void Tanim_Tas::emptyForm()
{
    TanimEkrani::emptyForm();
    m_ui->TasBirimi->clear();
    m_ui->TasBirimi->addItems(m_currencies);
    ComboSec(*m_ui->TasBirimi, u"USD"_s);
}

} // namespace kuyum
