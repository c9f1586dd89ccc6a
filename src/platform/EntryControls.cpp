#include "EntryControls.h"

#include "Messages.h"
#include "Numbers.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

static bool isAcceptable(const QString &text)
{
    return text.isEmpty() || text == ","_L1 || text == "."_L1 || isNumeric(text);
}

void SayiKontrol(QLineEdit &box, Messages &messages)
{
    QString text = box.text();
    if (isAcceptable(text))
        return;
    messages.say(box.window(), u"SAYISAL DEGER GIRIN..."_s, MessageIcon::Critical);
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
        SayiKontrol(box, messages);
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

bool isEnter(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
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
        font.setBold(true);
        model.setData(cell, QBrush(color), Qt::ForegroundRole);
        model.setData(cell, font, Qt::FontRole);
    });
}
