#include "CellEditors.h"

#include "EntryControls.h"
#include "Twips.h"

#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRegularExpressionValidator>
#include <QSignalBlocker>
#include <QTableView>

using namespace Qt::StringLiterals;

namespace kuyum {

constexpr Twips colourEditorExtra = 300_tw;
constexpr int noLimit = 32767;

CellEditors::CellEditors(QTableView *grid)
    : QObject(grid),
      m_grid(grid),
      txtTas(new QLineEdit(grid->viewport())),
      cmbTas(new QComboBox(grid->viewport()))
{
    txtTas->setObjectName(u"txtTas"_s);
    txtTas->setAccessibleName(u"Hücre"_s);
    cmbTas->setObjectName(u"cmbTas"_s);
    cmbTas->setAccessibleName(u"Renk"_s);
    txtTas->hide();
    cmbTas->hide();
    connect(txtTas, &QLineEdit::textEdited, this, &CellEditors::edited);
}

void CellEditors::setColours(const QStringList &colours)
{
    cmbTas->clear();
    cmbTas->addItems(colours);
}

void CellEditors::open(const QModelIndex &cell, Kind kind, int limit, const QString &typed)
{
    static const QRegularExpressionValidator whole(QRegularExpression(u"-?[0-9]*"_s));
    const QSignalBlocker opening(this); // the cell's own text is no scan
    m_cell = cell;
    m_kind = kind;
    const QString text = cell.data(Qt::EditRole).toString();
    if (kind == Kind::Colour) {
        m_colourTyped.clear();
        cmbTas->setCurrentIndex(cmbTas->findText(text, Qt::MatchFixedString));
        chooseColour(typed);
    } else {
        txtTas->setValidator(kind == Kind::Quantity ? &whole : nullptr);
        txtTas->setMaxLength(limit == 0 ? noLimit : limit);
        txtTas->setText(text);
        txtTas->selectAll();
        txtTas->insert(typed.isEmpty() ? text : typed);
        if (typed.isEmpty())
            txtTas->selectAll();
    }
    place();
    editor()->show();
    editor()->setFocus();
}

void CellEditors::close()
{
    QWidget *open = editor();
    m_cell = QPersistentModelIndex();
    if (open == nullptr)
        return;
    // The window may be in the background, behind a message box.
    const bool hadFocus = open == m_grid->window()->focusWidget();
    open->hide();
    if (hadFocus)
        m_grid->setFocus();
}

void CellEditors::place()
{
    if (!isOpen())
        return;
    QRect place = m_grid->visualRect(m_cell);
    if (m_kind == Kind::Colour)
        place.setWidth(place.width() + int(colourEditorExtra.pixels(m_grid->logicalDpiX())));
    editor()->setGeometry(place);
}

QWidget *CellEditors::editor() const
{
    if (!isOpen())
        return nullptr;
    return m_kind == Kind::Colour ? static_cast<QWidget *>(cmbTas) : txtTas;
}

QString CellEditors::text() const
{
    return m_kind == Kind::Colour ? cmbTas->currentText() : txtTas->text();
}

bool CellEditors::isChanged() const
{
    return text() != m_cell.data(Qt::EditRole).toString() &&
           (m_kind != Kind::Colour || cmbTas->currentIndex() >= 0);
}

CellEditors::Entry CellEditors::entry() const
{
    return {m_cell, txtTas->text(), cmbTas->currentIndex()};
}

void CellEditors::restore(const Entry &entry)
{
    if (entry.cell != m_cell) {
        close();
        return;
    }
    txtTas->setText(entry.text);
    cmbTas->setCurrentIndex(entry.colour);
}

void CellEditors::selectAll()
{
    txtTas->setFocus();
    txtTas->selectAll();
}

bool CellEditors::typeColour(const QKeyEvent *event)
{
    if (!typesCharacter(*event))
        return false;
    chooseColour(event->text());
    return true;
}

void CellEditors::chooseColour(const QString &text)
{
    if (!text.isEmpty())
        m_colourTyped = chooseTyped(*cmbTas, m_colourTyped, text);
}

} // namespace kuyum
