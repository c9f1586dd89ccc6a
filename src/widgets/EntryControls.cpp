#include "EntryControls.h"

#include "Messages.h"
#include "Numbers.h"
#include "TurkishText.h"

#include <algorithm>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTableView>

using namespace Qt::StringLiterals;

namespace kuyum {

static bool isAcceptable(const QString &text)
{
    return text.isEmpty() || text == ","_L1 || text == "."_L1 || isNumeric(text);
}

void SayiKontrol(QLineEdit &box, Messages &messages)
{
    QString text = box.text();
    if (isAcceptable(text))
        return;
    const QPointer<QLineEdit> stillThere = &box;
    messages.say(box.window(), u"SAYISAL DEGER GIRIN..."_s, MessageIcon::Critical);
    if (stillThere.isNull())
        return;
    // Typing spoils one character at a time; pasting can spoil many.
    while (!isAcceptable(text))
        text.chop(1);
    box.setText(text);
}

void VirgulNokta(QLineEdit &box)
{
    constexpr qsizetype longestDecimals = 6;
    QString text = box.text();
    const qsizetype commaPlace = text.indexOf(u',') + 1;
    if (text.size() - commaPlace >= longestDecimals || !text.contains(u','))
        return;
    box.setText(text.replace(u',', u'.'));
}

void keepNumeric(QLineEdit &box, Messages &messages)
{
    QObject::connect(&box, &QLineEdit::textChanged, &box, [&box, &messages] {
        const QPointer<QLineEdit> stillThere = &box;
        SayiKontrol(box, messages);
        if (!stillThere.isNull())
            VirgulNokta(box);
    });
}

void ComboSec(QComboBox &list, const QString &text)
{
    for (int i = 0; i < list.count(); ++i) {
        if (list.itemText(i) == text) {
            list.setCurrentIndex(i);
            return;
        }
    }
}

void ComboSecNo(QComboBox &list, qint64 number)
{
    for (int i = 0; i < list.count(); ++i) {
        if (list.itemData(i).isValid() && list.itemData(i).toLongLong() == number) {
            list.setCurrentIndex(i);
            return;
        }
    }
}

void TumunuSec(QLineEdit &box)
{
    box.selectAll();
}

namespace {

class EntrySelection : public QObject
{
public:
    explicit EntrySelection(QLineEdit *box) : QObject(box) {}

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::FocusIn) {
            auto *box = static_cast<QLineEdit *>(watched);
            const Qt::FocusReason reason = static_cast<QFocusEvent *>(event)->reason();
            // The click that brings the focus sets the cursor afterwards.
            if (reason == Qt::MouseFocusReason)
                QMetaObject::invokeMethod(box, &QLineEdit::selectAll, Qt::QueuedConnection);
            else if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
                TumunuSec(*box);
        }
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

void selectOnEntry(QLineEdit &box)
{
    box.installEventFilter(new EntrySelection(&box));
}

std::optional<TypedEntry> findTyped(const QComboBox &list, const QString &typedBefore,
                                    const QString &text)
{
    for (const QString &typed : {typedBefore + text, text}) {
        for (int i = 0; i < list.count(); ++i) {
            if (searchKey(list.itemText(i)).startsWith(searchKey(typed)))
                return TypedEntry{i, typed};
        }
    }
    return std::nullopt;
}

QString chooseTyped(QComboBox &list, const QString &typedBefore, const QString &text)
{
    const std::optional<TypedEntry> found = findTyped(list, typedBefore, text);
    if (!found)
        return typedBefore;
    list.setCurrentIndex(found->index);
    return found->typed;
}

bool typesCharacter(const QKeyEvent &event)
{
    const Qt::KeyboardModifiers held = event.modifiers();
    // Both together are AltGr, which types characters.
    const bool command = held.testFlag(Qt::ControlModifier) != held.testFlag(Qt::AltModifier);
    return !command && !event.text().isEmpty() && event.text().front().isPrint();
}

bool isEnter(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

bool leavesForGood(const QEvent &event)
{
    if (event.type() != QEvent::FocusOut)
        return false;
    const Qt::FocusReason reason = static_cast<const QFocusEvent &>(event).reason();
    // Entries that drop open take the focus a second time, for another reason.
    return reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason &&
           QApplication::activePopupWidget() == nullptr;
}

namespace {

class HeldEnter : public QObject
{
public:
    explicit HeldEnter(QPushButton *button) : QObject(button) {}

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::KeyPress) {
            const auto *key = static_cast<QKeyEvent *>(event);
            if (key->isAutoRepeat() && isEnter(*key))
                return true;
        }
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

void ignoreHeldEnter(QPushButton &button)
{
    button.installEventFilter(new HeldEnter(&button));
}

namespace {

class IdleMnemonics : public QObject
{
public:
    using QObject::QObject;

    /// What a mnemonic answers to does not come this far.
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::KeyPress && qobject_cast<QLineEdit *>(watched) != nullptr) {
            const auto *key = static_cast<QKeyEvent *>(event);
            if (key->modifiers().testFlag(Qt::AltModifier) && !key->text().isEmpty() &&
                key->text().front().isPrint() && !typesCharacter(*key))
                return true;
        }
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

void ignoreIdleMnemonics(QCoreApplication &application)
{
    application.installEventFilter(new IdleMnemonics(&application));
}

template <typename Paint>
static void paintRow(QAbstractItemView &grid, Paint paint)
{
    QAbstractItemModel *model = grid.model();
    const QModelIndex current = grid.currentIndex();
    if (!current.isValid())
        return;
    for (int column = 0; column < model->columnCount(current.parent()); ++column)
        paint(*model, current.siblingAtColumn(column));
    grid.setCurrentIndex(current.siblingAtColumn(0));
}

void copyCells(const QTableView &grid)
{
    QModelIndexList cells = grid.selectionModel()->selectedIndexes();
    if (cells.isEmpty() && grid.currentIndex().isValid())
        cells.append(grid.currentIndex());
    cells.removeIf([&](const QModelIndex &cell) { return grid.isColumnHidden(cell.column()); });
    std::sort(cells.begin(), cells.end()); // by row, then by column
    if (cells.isEmpty())
        return;
    QString text = cells.first().data().toString();
    for (qsizetype i = 1; i < cells.size(); ++i) {
        text += cells[i].row() == cells[i - 1].row() ? u'\t' : u'\n';
        text += cells[i].data().toString();
    }
    QGuiApplication::clipboard()->setText(text);
}

void SatirArkaRenk(QAbstractItemView &grid, const QColor &color)
{
    paintRow(grid, [&color](QAbstractItemModel &model, const QModelIndex &cell) {
        model.setData(cell, QBrush(color), Qt::BackgroundRole);
    });
}

void SatirYaziRenk(QAbstractItemView &grid, const QColor &color)
{
    paintRow(grid, [&](QAbstractItemModel &model, const QModelIndex &cell) {
        QFont font = cell.data(Qt::FontRole).isValid() ? cell.data(Qt::FontRole).value<QFont>()
                                                       : grid.font();
        font.setBold(color.isValid());
        model.setData(cell, color.isValid() ? QBrush(color) : QVariant(), Qt::ForegroundRole);
        model.setData(cell, font, Qt::FontRole);
    });
}

} // namespace kuyum
