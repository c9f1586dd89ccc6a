#pragma once

#include "OrderLookups.h"
#include "ScreenContext.h"
#include "SiparisGrid.h"

namespace kuyum {

class SiparisModel;

/// Takes what is entered as a row's model: a code, a scanned label or a choice
/// from the list. In quick entry nothing that stops the next scan is opened:
/// warnings go to the screen's own line.
class ModelEntry : public QObject
{
    Q_OBJECT

public:
    ModelEntry(const ScreenContext &context, SiparisGrid *grid, SiparisModel *model);

    ModelOutcome enter(const QString &text, ModelSource source);

    void setQuickEntry(bool on);
    /// The colour that new rows get by themselves; empty for none.
    void setFixedColour(const QString &renk) { m_fixedColour = renk; }
    void forgetNotFound() { m_notFound.clear(); }

Q_SIGNALS:
    /// For the screen's own line; an empty text clears it.
    void warning(const QString &text);
    void modelTaken(int row);

private:
    ModelOutcome take(const QString &text, ModelSource source);
    void tellUnknownLabel(const QString &text);
    std::optional<FoundModel> pickFromList(const QString &filter) const;
    void putIntoRow(int row, const FoundModel &found);
    void GridKontrol(int row);
    void warn(const QString &text);

    ScreenContext m_context;
    OrderLookups m_lookups;
    SiparisGrid *m_grid;
    SiparisModel *m_model;
    QString m_fixedColour;
    QStringList m_notFound; ///< labels and models that scans went past
    bool m_quickEntry = false;
};

} // namespace kuyum
