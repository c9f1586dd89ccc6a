#include "SavedLine.h"

#include "Theme.h"

#include <QAccessible>
#include <QBoxLayout>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace kuyum {

SavedLine::SavedLine(QWidget *parent) : ElidedLabel(parent)
{
    setObjectName(u"kayitNotu"_s);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    QPalette calm = palette();
    calm.setColor(QPalette::WindowText, themeColors(calm).muted);
    setPalette(calm);
}

void SavedLine::standAboveButtons(QBoxLayout &column)
{
    setMinimumHeight(fontMetrics().height());
    for (int i = 0; i < column.count(); ++i) {
        if (column.itemAt(i)->spacerItem() == nullptr)
            continue;
        delete column.takeAt(i);
        column.insertWidget(i, this);
        return;
    }
    column.insertWidget(column.count() - 1, this);
    m_hides = true;
    hide();
}

void SavedLine::goWith(const QLineEdit &key)
{
    connect(&key, &QLineEdit::textEdited, this, &SavedLine::forget);
}

void SavedLine::tell(const QString &what)
{
    setText(what + u" kaydedildi."_s);
    setAccessibleName(text());
    show();
    QAccessibleEvent announcement(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&announcement);
}

void SavedLine::forget()
{
    clear();
    setVisible(!m_hides);
}

} // namespace kuyum
