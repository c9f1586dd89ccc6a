#include "Tanim_Renk.h"

#include "ui_Tanim_Renk.h"

using namespace Qt::StringLiterals;

namespace kuyum {

Tanim_Renk::Tanim_Renk(const ScreenContext &context, QWidget *parent)
    : TanimEkrani(context, parent),
      m_store(context.oturum),
      m_ui(std::make_unique<Ui::Tanim_Renk>())
{
    m_ui->setupUi(this);
    setUpForm({.table = u"Renkler"_s,
               .parts = partsOf(*m_ui),
               .keys = {m_ui->RenkNo},
               .values = {m_ui->Renksira},
               .numbers = {m_ui->Renksira}});
}

Tanim_Renk::~Tanim_Renk() = default;

bool Tanim_Renk::pickKey()
{
    const LookupAnswer answer = context().openList(this, {u"Renk Listesi"_s, m_ui->RenkNo->text()});
    if (answer.Secilen.isEmpty())
        return false;
    m_ui->RenkNo->setText(answer.Secilen);
    return true;
}

TanimEkrani::Found Tanim_Renk::readRow()
{
    std::optional<Renk> renk = m_store.Renkbul(m_ui->RenkNo->text());
    if (!renk) {
        // A new colour is saved without blanks around it, so it is looked up like that too.
        m_ui->RenkNo->setText(m_ui->RenkNo->text().trimmed());
        renk = m_store.Renkbul(m_ui->RenkNo->text());
    }
    if (!renk)
        return Found::NewRow;
    m_ui->RenkNo->setText(renk->RenkNo);
    showNumber(*m_ui->Renksira, renk->Renksira);
    return Found::Row;
}

QList<RecordRows> Tanim_Renk::recordRows() const
{
    return m_store.kayit(m_ui->RenkNo->text());
}

bool Tanim_Renk::writeRow()
{
    return store([&](LoadedRows &loaded) {
        m_store.save({m_ui->RenkNo->text(), number(*m_ui->Renksira)}, loaded);
    });
}

QString Tanim_Renk::savedWhat() const
{
    return m_ui->RenkNo->text() + u" rengi"_s;
}

bool Tanim_Renk::mayRemove()
{
    return ask(m_ui->RenkNo->text() + u" RENK TANIMI SİLİNECEK ...!"_s, {}, MessageAnswer::Yes);
}

bool Tanim_Renk::removeRow()
{
    return store([this](LoadedRows &loaded) { m_store.remove(m_ui->RenkNo->text(), loaded); });
}

} // namespace kuyum
