#include "MalzemeDelegate.h"

#include "EntryControls.h"
#include "MalzemeModel.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace kuyum {

MalzemeDelegate::MalzemeDelegate(Messages &messages, QObject *parent)
    : QStyledItemDelegate(parent), m_messages(messages)
{
}

QString MalzemeDelegate::text() const
{
    if (const auto *list = qobject_cast<QComboBox *>(m_editor))
        return list->currentText();
    return qobject_cast<QLineEdit *>(m_editor)->text();
}

QWidget *MalzemeDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                       const QModelIndex &cell) const
{
    m_editor = cell.column() == MalzemeModel::tipColumn   ? makeKindList(parent)
               : cell.column() == MalzemeModel::kodColumn ? makeCodeBox(parent)
                                                          : makeCountBox(parent);
    m_cell = cell;
    return m_editor;
}

QWidget *MalzemeDelegate::makeKindList(QWidget *parent) const
{
    auto *cmbTas = new QComboBox(parent);
    cmbTas->setObjectName(u"cmbTas"_s);
    cmbTas->setAccessibleName(u"Malzeme tipi"_s);
    cmbTas->addItems({malzemeAdi(MalzemeTipi::Tas), malzemeAdi(MalzemeTipi::YariMamul)});
    return cmbTas;
}

QWidget *MalzemeDelegate::makeCodeBox(QWidget *parent) const
{
    auto *txtTas = new QLineEdit(parent);
    txtTas->setObjectName(u"txtTas"_s);
    txtTas->setAccessibleName(u"Malzeme kodu"_s);
    txtTas->setPlaceholderText(u"boş: liste"_s);
    if (m_codeLimit > 0)
        txtTas->setMaxLength(m_codeLimit);
    return txtTas;
}

QWidget *MalzemeDelegate::makeCountBox(QWidget *parent) const
{
    auto *txtTas1 = new QLineEdit(parent);
    txtTas1->setObjectName(u"txtTas1"_s);
    txtTas1->setAccessibleName(u"Adet"_s);
    txtTas1->setAlignment(Qt::AlignRight);
    keepNumeric(*txtTas1, m_messages);
    return txtTas1;
}

void MalzemeDelegate::setEditorData(QWidget *editor, const QModelIndex &cell) const
{
    const QString text = cell.data(Qt::EditRole).toString();
    if (auto *list = qobject_cast<QComboBox *>(editor)) {
        ComboSec(*list, text);
    } else if (auto *box = qobject_cast<QLineEdit *>(editor)) {
        box->setText(text);
        box->selectAll();
    }
}

bool MalzemeDelegate::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_editor)
        return false;
    if (event->type() == QEvent::KeyPress) {
        const auto &press = *static_cast<QKeyEvent *>(event);
        const bool enters = isEnter(press) || press.key() == Qt::Key_Tab;
        const bool leaves = press.key() == Qt::Key_Escape;
        if (press.isAutoRepeat() && (enters || leaves))
            return true; // still held from what opened the editor
        if (enters)
            Q_EMIT entered();
        else if (leaves)
            Q_EMIT abandoned();
        return enters || leaves;
    }
    if (event->type() == QEvent::FocusOut) {
        if (leavesForGood(*event))
            Q_EMIT left();
        return false;
    }
    return event->type() == QEvent::ShortcutOverride &&
           QStyledItemDelegate::eventFilter(watched, event);
}

} // namespace kuyum
