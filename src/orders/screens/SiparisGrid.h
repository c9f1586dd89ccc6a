#pragma once

#include "LabelScan.h"

#include <functional>
#include <optional>
#include <QTableView>

namespace kuyum {

class SiparisModel;

/// What became of a text entered as a model.
enum class ModelOutcome {
    Refused, ///< not taken; the editor stays open with it
    Taken,   ///< taken: the row goes on to its colour and quantities
    Counted  ///< a label that counted a piece: on to the next row's model
};

/// How a text came to be entered as a model.
enum class ModelSource {
    Typed, ///< the user goes on with it
    Left   ///< a scan broke in on it: nothing may stop that
};

/// The order's grid. Enter goes on from cell to cell, typing on a cell starts
/// its editor, and a barcode scanner counts as a fast keyboard.
class SiparisGrid : public QTableView
{
    Q_OBJECT

public:
    explicit SiparisGrid(QWidget *parent = nullptr);

    void setSiparisModel(SiparisModel *model);
    void setColours(const QStringList &colours);
    /// How many characters the fields of model and note take; 0 is no limit.
    void setLimits(int modelCharacters, int noteCharacters);
    /// Who takes a text that was entered as the current row's model.
    using ModelTaker = std::function<ModelOutcome(const QString &, ModelSource)>;
    void setModelEntry(ModelTaker take) { m_take = std::move(take); }
    /// Labels are taken as soon as they are complete, without Enter, and
    /// scanned ones wherever the cursor stands.
    void setQuickEntry(bool on) { m_quickEntry = on; }

    void goTo(int row, int column);
    /// To the first row without a model; adds one where none is left.
    void goToEmptyRow();
    /// Finishes an open editor; false when its text was not taken.
    bool finishEdit();
    /// Closes the editor and leaves the cell as it was.
    void abandonEdit();
    /// An editor is open and holds what its cell does not have yet.
    bool hasUnfinishedText() const;
    /// Opens a new row behind the last one, once that has model and colour.
    void SatirAc();

Q_SIGNALS:
    void rowRemovalAsked(int row);
    void abandoned();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    int usualCharacters(int column) const;
    void spreadColumns();
    void startEditor(const QModelIndex &cell, const QString &typed = {});
    bool startsEditor(const QKeyEvent *event) const;
    bool editorKey(QKeyEvent *event);
    void editorLeft();
    bool takeScan(const QKeyEvent *event);
    void leaveEntry();
    void labelTyped(const QString &text);
    void takeLabel(const QString &text);
    bool takeModel(const QString &text, ModelSource source = ModelSource::Typed);
    bool isScannerEnter(const QKeyEvent *event);
    void goOn(const QModelIndex &from);
    void goToNextRow(int row);

    SiparisModel *m_model = nullptr;
    CellEditors *m_editors;
    ModelTaker m_take;
    LabelScan m_scan;
    quint64 m_keyTime = 0; ///< of the last key, by the keyboard's clock
    ModelOutcome m_outcome = ModelOutcome::Taken;
    int m_modelCharacters = 0;
    int m_noteCharacters = 0;
    bool m_quickEntry = false;
    bool m_taking = false;
    std::optional<quint64> m_labelTime; ///< of the key before this one, when it ended a label
};

} // namespace kuyum
