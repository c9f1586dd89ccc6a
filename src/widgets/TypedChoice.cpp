#include "TypedChoice.h"

#include "ChoiceBox.h"
#include "EntryControls.h"
#include "TurkishText.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QPointer>

namespace kuyum {

namespace {

class TypedChoice : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool choose(QComboBox &list, const QString &text);

    QPointer<QComboBox> m_list; ///< that was typed into last
    QString m_typed;
    QElapsedTimer m_sinceTyped;
};

/// The list that a key is typed into: itself, or the one whose entries are
/// open. A closed one that edits a cell is its grid's, which may scan with it.
QComboBox *listOf(QObject *watched)
{
    if (auto *list = qobject_cast<QComboBox *>(watched)) {
        const QWidget *around = list->parentWidget();
        const bool inCell = around != nullptr &&
                            qobject_cast<QAbstractItemView *>(around->parentWidget()) != nullptr;
        return list->isEditable() || inCell ? nullptr : list;
    }
    const auto *entries = qobject_cast<QAbstractItemView *>(watched);
    const QWidget *frame = entries != nullptr ? entries->parentWidget() : nullptr;
    return frame != nullptr ? qobject_cast<QComboBox *>(frame->parentWidget()) : nullptr;
}

bool TypedChoice::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const auto *key = static_cast<QKeyEvent *>(event);
    QComboBox *list = typesCharacter(*key) ? listOf(watched) : nullptr;
    return list != nullptr && choose(*list, key->text());
}

/// False for a blank that begins nothing: it opens the list.
bool TypedChoice::choose(QComboBox &list, const QString &text)
{
    const bool goesOn = m_list == &list && m_sinceTyped.isValid() &&
                        m_sinceTyped.elapsed() < QApplication::keyboardInputInterval();
    if (!goesOn)
        m_typed.clear();
    if (m_typed.isEmpty() && text.trimmed().isEmpty())
        return false;
    m_list = &list;
    m_sinceTyped.start();
    const std::optional<TypedEntry> found = findTyped(list, m_typed, text);
    if (!found)
        return true;
    m_typed = found->typed;
    if (list.view()->isVisible()) {
        // As by the arrow keys: Enter takes it, Escape leaves what was.
        list.view()->setCurrentIndex(
            list.model()->index(found->index, list.modelColumn(), list.rootModelIndex()));
        return true;
    }
    list.setCurrentIndex(found->index);
    // A box that is walked through has nothing chosen yet.
    if (qobject_cast<ChoiceBox *>(&list) == nullptr)
        Q_EMIT list.activated(found->index);
    return true;
}

} // namespace

void chooseEntriesAsTyped(QCoreApplication &application)
{
    application.installEventFilter(new TypedChoice(&application));
}

} // namespace kuyum
