#pragma once

#include <QPersistentModelIndex>
#include <QPointer>
#include <QStyledItemDelegate>

namespace kuyum {

class Messages;

/// Makes the editors of the materials' grid, and tells the grid what keys and
/// focus do to them; the grid takes what they hold.
class MalzemeDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    MalzemeDelegate(Messages &messages, QObject *parent);

    void setCodeLimit(int characters) { m_codeLimit = characters; }

    bool isEditing() const { return !m_editor.isNull(); }
    QWidget *editor() const { return m_editor; }
    QModelIndex cell() const { return m_cell; }
    /// What the open editor holds.
    QString text() const;
    void forgetEditor() { m_editor = nullptr; }

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &cell) const override;
    void setEditorData(QWidget *editor, const QModelIndex &cell) const override;

Q_SIGNALS:
    void entered();
    void abandoned();
    void left();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QWidget *makeKindList(QWidget *parent) const;
    QWidget *makeCodeBox(QWidget *parent) const;
    QWidget *makeCountBox(QWidget *parent) const;

    Messages &m_messages;
    int m_codeLimit = 0;
    // The view asks for an editor through a const function.
    mutable QPointer<QWidget> m_editor;
    mutable QPersistentModelIndex m_cell;
};

} // namespace kuyum
