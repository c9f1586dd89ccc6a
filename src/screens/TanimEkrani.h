#pragma once

#include "LoadedRows.h"
#include "Messages.h"
#include "ScreenContext.h"
#include "TableDef.h"

#include <QDialog>
#include <QHash>

class QLabel;
class QLineEdit;
class QPushButton;

namespace kuyum {

class SavedLine;

/// The base of the definition screens, which edit one row, found by its key.
///
/// - Key entry: the key and `cmdListe` live. Enter in the key finds the row,
///   without a key it opens the list; Escape closes the screen.
/// - Editing, of a row found or a new one: the values, `cmdKayit` and
///   `cmdvazgec` live, `cmdsil` for a row found. Enter goes to the next value,
///   and from the last to `cmdKayit`; Escape abandons the row. Closing does
///   not ask.
///
/// Enter and Escape held down take one step, not many.
///
/// A screen calls setUpForm() at the end of its constructor and says how its
/// row is picked, read, written and removed. An error that one of these throws
/// is shown and leaves the screen as it was typed.
class TanimEkrani : public QDialog
{
    Q_OBJECT

public:
    /// Leaves the screen, where it lets itself be left.
    void reject() override;

protected:
    /// What reading the row of the key came to. Refused: the screen has said
    /// why, and stays in key entry.
    enum class Found { Row, NewRow, Refused };

    /// The parts that every definition form has, under these names.
    struct Parts
    {
        QPushButton *cmdListe;
        QPushButton *cmdKayit;
        QPushButton *cmdvazgec;
        QPushButton *cmdsil;
        QPushButton *cmdSon;
        QLabel *kayitDurumu; ///< tells a new row from one found
    };
    template <typename Ui>
    static Parts partsOf(const Ui &ui)
    {
        return {ui.cmdListe, ui.cmdKayit, ui.cmdvazgec, ui.cmdsil, ui.cmdSon, ui.kayitDurumu};
    }

    struct Form
    {
        QString table; ///< a control that bears a field's name keeps to its size
        Parts parts;
        QList<QWidget *> keys;
        QList<QWidget *> values;            ///< in the order Enter walks them
        QList<QLineEdit *> numbers;         ///< those of both that take nothing but a number
        QList<QWidget *> whileEditing = {}; ///< what else lives only while editing
    };

    explicit TanimEkrani(const ScreenContext &context, QWidget *parent);

    void setUpForm(const Form &form);

    /// Opens the list and puts what was taken into the key; whether anything was.
    virtual bool pickKey() = 0;
    /// Shows the row of the key, when there is one.
    virtual Found readRow() = 0;
    /// Whether what is on the screen can be written: the numbers fit. If not,
    /// says so and goes there.
    virtual bool mayWrite();
    /// What the record of the key is made of in the database.
    virtual QList<RecordRows> recordRows() const = 0;
    /// Writes the row that is on the screen, through store(); false when the
    /// screen refused it and has said why, or the user chose not to.
    virtual bool writeRow() = 0;
    /// What the row on the screen is called when it has been saved.
    virtual QString savedWhat() const = 0;
    /// Asks whether the row found shall go.
    virtual bool mayRemove() = 0;
    /// Removes it, through store().
    virtual bool removeRow() = 0;
    /// Runs a save or a removal. Where another changed the record since it was
    /// found, the user chooses: his own is written, the other's is shown, or
    /// the screen stays as it is. Whether it was written.
    bool store(const std::function<void(LoadedRows &)> &write);

    /// Whether Enter in the key has something to find: a text in the first key.
    virtual bool hasKey() const;
    /// Enter in one of the keys.
    virtual void keyEntered(QWidget *key);
    /// Whether what is being edited may be given up; the screen asks where that
    /// would cost much.
    virtual bool mayLeave() { return true; }
    /// Empties all keys and values; lists go back to their first entry.
    virtual void emptyForm();

    /// Finds the row of the key and switches to editing.
    void Bul();
    void TusAC(Found found);
    /// Back to key entry, with everything emptied.
    void TusKapa();
    /// What `cmdvazgec` and Escape do.
    void Vazgec();
    bool isEditing() const;

    /// Goes to a control, a text selected whole.
    static void goTo(QWidget *control);
    /// Goes to the one after a value: the next, or from the last `cmdKayit`.
    void goOn(const QWidget *value);

    /// Shows a number by the picture, or without one as it is. Where the
    /// picture rounds, number() gives the exact value back until it is typed over.
    void showNumber(QLineEdit &box, double value, QStringView picture = {});
    double number(const QLineEdit &box) const;
    /// Whether the number fits the field that the box is named after. If not,
    /// says so and goes to the box.
    bool numberFits(QLineEdit &box);
    /// No box takes more than its field does, so that a save never refuses a text.
    void limitText(QLineEdit &box, QStringView field);

    /// The question before a removal; true for Yes.
    bool ask(const QString &text, const QString &title, MessageAnswer defaultAnswer);
    void warn(const QString &text);

    void keyPressEvent(QKeyEvent *event) override;

    const ScreenContext &context() const { return m_context; }
    Oturum &oturum() const { return m_context.oturum; }

private:
    struct ShownNumber
    {
        QString text;
        double value;
    };

    void bind(QPushButton *button, void (TanimEkrani::*action)());
    void setEnabled(Found found, bool editing);
    void pick();
    void save();
    void removeFound();
    void enterPressed();

    ScreenContext m_context;
    TableDef m_table;
    Form m_form;
    LoadedRows m_loaded; ///< the record as it stood when it was found
    QHash<const QLineEdit *, ShownNumber> m_shown;
    SavedLine *m_saved;
};

} // namespace kuyum
