#include "Tanim_Ayar.h"

#include "Numbers.h"
#include "ui_Tanim_Ayar.h"

using namespace Qt::StringLiterals;

namespace kuyum {

Tanim_Ayar::Tanim_Ayar(const ScreenContext &context, QWidget *parent)
    : TanimEkrani(context, parent),
      m_store(context.oturum),
      m_ui(std::make_unique<Ui::Tanim_Ayar>())
{
    m_ui->setupUi(this);
    setUpForm({.table = u"Ayar"_s,
               .parts = partsOf(*m_ui),
               .keys = {m_ui->Milyem},
               .values = {m_ui->Yogunluk},
               .numbers = {m_ui->Milyem, m_ui->Yogunluk}});
}

Tanim_Ayar::~Tanim_Ayar() = default;

double Tanim_Ayar::Milyem() const
{
    return leadingNumber(m_ui->Milyem->text());
}

bool Tanim_Ayar::hasKey() const
{
    return Milyem() != 0;
}

bool Tanim_Ayar::pickKey()
{
    const LookupAnswer answer =
        context().openList(this, {u"Milyem Listesi"_s, m_ui->Milyem->text()});
    const double chosen = leadingNumber(answer.Secilen);
    if (chosen == 0)
        return false;
    m_ui->Milyem->setText(plainNumber(chosen));
    return true;
}

TanimEkrani::Found Tanim_Ayar::readRow()
{
    if (!numberFits(*m_ui->Milyem))
        return Found::Refused;
    m_ui->Milyem->setText(plainNumber(Milyem()));
    const std::optional<Ayar> ayar = m_store.AyarBul(Milyem());
    if (!ayar)
        return Found::NewRow;
    showNumber(*m_ui->Yogunluk, ayar->Yogunluk, u"#0.000000");
    return Found::Row;
}

QList<RecordRows> Tanim_Ayar::recordRows() const
{
    return m_store.kayit(Milyem());
}

bool Tanim_Ayar::writeRow()
{
    return store([&](LoadedRows &loaded) {
        m_store.save({Milyem(), number(*m_ui->Yogunluk)}, loaded);
    });
}

QString Tanim_Ayar::savedWhat() const
{
    return m_ui->Milyem->text() + u" ayarı"_s;
}

bool Tanim_Ayar::mayRemove()
{
    return ask(m_ui->Milyem->text() + u" TANIMI SİLİNECEK ...!"_s, {}, MessageAnswer::Yes);
}

bool Tanim_Ayar::removeRow()
{
    return store([this](LoadedRows &loaded) { m_store.remove(Milyem(), loaded); });
}

} // namespace kuyum
