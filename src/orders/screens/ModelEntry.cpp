#include "ModelEntry.h"

#include "Guarded.h"
#include "OrderCode.h"
#include "SiparisModel.h"
#include "TurkishText.h"

#include <QApplication>

using namespace Qt::StringLiterals;

namespace kuyum {

ModelEntry::ModelEntry(const ScreenContext &context, SiparisGrid *grid, SiparisModel *model)
    : QObject(grid), m_context(context), m_lookups(context.oturum), m_grid(grid), m_model(model)
{
    grid->setModelEntry(
        [this](const QString &text, ModelSource source) { return enter(text, source); });
}

void ModelEntry::setQuickEntry(bool on)
{
    m_quickEntry = on;
    m_notFound.clear();
    m_grid->setQuickEntry(on);
}

ModelOutcome ModelEntry::enter(const QString &text, ModelSource source)
{
    ModelOutcome result = ModelOutcome::Refused;
    guarded(m_context.messages, m_grid->window(), [&] { result = take(text, source); });
    return result;
}

ModelOutcome ModelEntry::take(const QString &text, ModelSource source)
{
    const int row = m_grid->currentIndex().row();
    warn({});
    std::optional<FoundModel> found;
    if (!text.isEmpty())
        found = m_lookups.model(text);
    if (!found && (readLabel(text) || readOrderCode(text))) {
        tellUnknownLabel(text);
        return ModelOutcome::Refused;
    }
    if (!found && source == ModelSource::Left) {
        // It stays in its row, where it can be corrected; a save refuses it.
        m_model->setData(m_model->index(row, SiparisModel::modelColumn), text);
        m_notFound.append(text);
        warn(u"MODEL BULUNAMADI"_s);
        return ModelOutcome::Taken;
    }
    if (!found)
        found = pickFromList(text);
    if (!found)
        return ModelOutcome::Refused;
    putIntoRow(row, *found);
    Q_EMIT modelTaken(row);
    GridKontrol(row);
    return found->KisaAD.isEmpty() ? ModelOutcome::Taken : ModelOutcome::Counted;
}

/// No list opens for a label: it would begin at the digits, and the Enter that
/// a scanner sends behind them would order whatever model stands there.
void ModelEntry::tellUnknownLabel(const QString &text)
{
    const LabelledModel label = m_lookups.etiket(text).value_or(LabelledModel());
    const QString why = readOrderCode(text)
                            ? u"BU BİR SİPARİŞ FİŞİNİN BARKODU, ÜRÜN ETİKETİ DEĞİL"_s
                            : label.whyNot();
    m_notFound.append(label.Model.isEmpty() ? text : text + u" = "_s + label.Model);
    warn(why);
    if (!m_quickEntry)
        m_context.messages.say(m_grid->window(), why + u"\n\n"_s + text, MessageIcon::Exclamation);
}

std::optional<FoundModel> ModelEntry::pickFromList(const QString &filter) const
{
    const LookupAnswer answer =
        m_context.openList(m_grid->window(), {u"Siparis Model Listesi"_s, filter});
    if (answer.Secilen.isEmpty())
        return std::nullopt;
    return FoundModel{answer.Secilen, {}};
}

void ModelEntry::putIntoRow(int row, const FoundModel &found)
{
    const QStringList types = m_lookups.typesOfModel(found.Model);
    m_model->setData(m_model->index(row, SiparisModel::modelColumn), found.Model);
    const QModelIndex colour = m_model->index(row, SiparisModel::colourColumn);
    if (!m_fixedColour.isEmpty() && m_model->rowAt(row).renk.isEmpty())
        m_model->setData(colour, m_fixedColour);
    m_model->SatirKitle(row, types, found.KisaAD, found.KisaAD.isEmpty() ? 0 : 1);
}

/// Warns of a model that stands in a row above; it never refuses.
void ModelEntry::GridKontrol(int row)
{
    const QString warning = u"TABLODA KAYIT MEVCUT!"_s;
    for (int above = 0; above < row; ++above) {
        if (!sameText(m_model->rowAt(above).model, m_model->rowAt(row).model))
            continue;
        if (m_quickEntry)
            warn(warning + u"  "_s + m_model->rowAt(row).model);
        else
            m_context.messages.say(m_grid->window(), warning, MessageIcon::Exclamation);
        return;
    }
}

void ModelEntry::warn(const QString &text)
{
    if (!text.isEmpty())
        QApplication::beep();
    QStringList lines;
    if (!text.isEmpty())
        lines.append(text);
    // What was not found must still be seen after the scans that follow it.
    if (!m_notFound.isEmpty())
        lines.append(u"Bulunamayanlar: "_s + m_notFound.join(u", "_s));
    Q_EMIT warning(lines.join(u'\n'));
}

} // namespace kuyum
