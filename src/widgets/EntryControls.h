#pragma once

#include <optional>
#include <QString>

class QAbstractItemView;
class QColor;
class QComboBox;
class QCoreApplication;
class QEvent;
class QKeyEvent;
class QLineEdit;
class QPushButton;
class QTableView;

namespace kuyum {

class Messages;

/// Helpers of the boxes, lists and grids that data are entered with.

/// Refuses a text that is no number, with a message, and cuts it back to the
/// part that is one. A lone "," or "." stays: a number being started.
void SayiKontrol(QLineEdit &box, Messages &messages);
/// Makes the decimal comma a point.
void VirgulNokta(QLineEdit &box);
/// Both of them at every change of the box.
void keepNumeric(QLineEdit &box, Messages &messages);

/// Selects the first entry with exactly this text, or leaves the selection.
void ComboSec(QComboBox &list, const QString &text);
/// Selects the first entry that carries this number, or leaves the selection.
void ComboSecNo(QComboBox &list, qint64 number);

void TumunuSec(QLineEdit &box);
/// Selects the box's whole text whenever the user goes into it. Coming back
/// from another window or from the box's menu does not count: the cursor stays.
void selectOnEntry(QLineEdit &box);

/// An entry of a list, and what counts as typed so far to reach it.
struct TypedEntry
{
    int index;
    QString typed;
};
/// The first entry that begins with what was typed so far and now, or else
/// with what was typed now. Letter case does not count, and i, ı, I and İ find
/// each other.
std::optional<TypedEntry> findTyped(const QComboBox &list, const QString &typedBefore,
                                    const QString &text);
/// Chooses that entry; returns what counts as typed so far.
QString chooseTyped(QComboBox &list, const QString &typedBefore, const QString &text);

/// Whether a key press types a character.
bool typesCharacter(const QKeyEvent &event);
/// Whether a key press is Enter's, on either part of the keyboard.
bool isEnter(const QKeyEvent &event);
/// Whether an event takes the focus to another control of the window. A box, a
/// menu, a list's own entries or another window in front does not mean that an
/// entry is finished.
bool leavesForGood(const QEvent &event);
/// Lets an Enter that is held down press the button but once.
void ignoreHeldEnter(QPushButton &button);
/// Keeps Alt with the letter of a button that is grey from typing the letter
/// into the box that has the focus.
void ignoreIdleMnemonics(QCoreApplication &application);

/// Puts the selected cells of a grid into the clipboard, or else the current
/// one: a line for each row, tabs between the columns that are shown.
void copyCells(const QTableView &grid);

/// Mark the grid's current row, cell by cell, in the model's own roles; the
/// first column becomes the current one. SatirYaziRenk makes the text bold too,
/// and without a colour takes both back.
void SatirArkaRenk(QAbstractItemView &grid, const QColor &color);
void SatirYaziRenk(QAbstractItemView &grid, const QColor &color = {});

} // namespace kuyum
