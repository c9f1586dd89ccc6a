#include "TanimEkrani.h"

#include "EntryControls.h"
#include "Guarded.h"
#include "NumberRange.h"
#include "Numbers.h"
#include "Oturum.h"
#include "SavedLine.h"
#include "SaveOver.h"
#include "Theme.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace kuyum {

TanimEkrani::TanimEkrani(const ScreenContext &context, QWidget *parent)
    : QDialog(parent), m_context(context), m_saved(new SavedLine(this))
{
}

void TanimEkrani::setUpForm(const Form &form)
{
    m_form = form;
    m_table = oturum().Veritabani->tableDef(form.table);
    bind(form.parts.cmdListe, &TanimEkrani::pick);
    bind(form.parts.cmdKayit, &TanimEkrani::save);
    bind(form.parts.cmdvazgec, &TanimEkrani::Vazgec);
    bind(form.parts.cmdsil, &TanimEkrani::removeFound);
    connect(form.parts.cmdSon, &QPushButton::clicked, this, &QDialog::reject);
    for (auto *button : findChildren<QPushButton *>())
        button->setAutoDefault(false); // Enter on a text must not press a button
    form.parts.cmdKayit->setDefault(true);
    // A default button takes Enter for itself.
    ignoreHeldEnter(*form.parts.cmdKayit);
    QPalette muted = palette();
    const QColor mutedText = themeColors(muted).muted;
    muted.setColor(QPalette::WindowText, mutedText);
    // While its row is edited, the key cannot be typed in but must be read.
    muted.setColor(QPalette::Disabled, QPalette::Text, mutedText);
    for (QWidget *control : form.keys + QList<QWidget *>{form.parts.kayitDurumu})
        control->setPalette(muted);

    m_saved->standAboveButtons(*qobject_cast<QBoxLayout *>(layout()));
    for (QWidget *key : form.keys) {
        if (const auto *box = qobject_cast<QLineEdit *>(key))
            m_saved->goWith(*box);
    }
    for (QWidget *control : form.keys + form.values) {
        if (auto *box = qobject_cast<QLineEdit *>(control)) {
            limitText(*box, box->objectName());
            selectOnEntry(*box);
        }
    }
    for (QLineEdit *box : form.numbers) {
        keepNumeric(*box, m_context.messages);
        connect(box, &QLineEdit::textEdited, this, [this, box] { m_shown.remove(box); });
    }
    TusKapa();
}

/// A button's action; an unexpected error ends the action, not the screen.
void TanimEkrani::bind(QPushButton *button, void (TanimEkrani::*action)())
{
    connect(button, &QPushButton::clicked, this,
            [this, action] { guarded(m_context.messages, this, [&] { (this->*action)(); }); });
}

// Keys

void TanimEkrani::keyPressEvent(QKeyEvent *event)
{
    // The steps after the one that was meant would save, list or close.
    if (event->isAutoRepeat() && (isEnter(*event) || event->key() == Qt::Key_Escape))
        return;
    if (isEnter(*event))
        guarded(m_context.messages, this, [this] { enterPressed(); });
    else if (event->key() == Qt::Key_Escape && isEditing())
        guarded(m_context.messages, this, [this] { Vazgec(); });
    else
        QDialog::keyPressEvent(event);
}

/// Enter goes on, and presses the button that it is given to.
void TanimEkrani::enterPressed()
{
    QWidget *from = focusWidget();
    if (m_form.keys.contains(from))
        keyEntered(from);
    else if (m_form.values.contains(from))
        goOn(from);
    else if (auto *button = qobject_cast<QAbstractButton *>(from))
        button->click();
}

void TanimEkrani::keyEntered(QWidget *)
{
    if (hasKey())
        Bul();
    else
        pick();
}

bool TanimEkrani::hasKey() const
{
    const auto *key = qobject_cast<QLineEdit *>(m_form.keys.first());
    return key != nullptr && !key->text().trimmed().isEmpty();
}

void TanimEkrani::goOn(const QWidget *value)
{
    const qsizetype next = m_form.values.indexOf(value) + 1;
    goTo(next < m_form.values.size() ? m_form.values[next] : m_form.parts.cmdKayit);
}

void TanimEkrani::goTo(QWidget *control)
{
    // As by the Tab key, so that the focus is seen to have moved.
    control->setFocus(Qt::TabFocusReason);
    // A box that gets the focus back from another window would keep its cursor.
    if (auto *box = qobject_cast<QLineEdit *>(control))
        TumunuSec(*box);
}

// The two modes

bool TanimEkrani::isEditing() const
{
    return m_form.parts.cmdKayit->isEnabled();
}

void TanimEkrani::setEnabled(Found found, bool editing)
{
    const Parts &parts = m_form.parts;
    for (QWidget *control : m_form.keys + QList<QWidget *>{parts.cmdListe})
        control->setEnabled(!editing);
    for (QWidget *control :
         m_form.values + m_form.whileEditing + QList<QWidget *>{parts.cmdKayit, parts.cmdvazgec})
        control->setEnabled(editing);
    parts.cmdsil->setEnabled(editing && found == Found::Row);
}

void TanimEkrani::TusAC(Found found)
{
    setEnabled(found, true);
    m_saved->forget();
    m_form.parts.kayitDurumu->setText(found == Found::Row ? u"Kayıtlı"_s : u"Yeni kayıt"_s);
    for (QWidget *value : m_form.values) {
        // A text longer than its box is read from its beginning.
        if (auto *box = qobject_cast<QLineEdit *>(value))
            box->setCursorPosition(0);
    }
    goTo(m_form.values.first());
}

void TanimEkrani::TusKapa()
{
    m_shown.clear();
    emptyForm();
    m_form.parts.kayitDurumu->clear();
    setEnabled(Found::Refused, false);
    goTo(m_form.keys.first());
}

void TanimEkrani::Vazgec()
{
    if (mayLeave())
        TusKapa();
}

void TanimEkrani::reject()
{
    if (mayLeave())
        QDialog::reject();
}

void TanimEkrani::emptyForm()
{
    for (QWidget *control : m_form.keys + m_form.values) {
        if (auto *box = qobject_cast<QLineEdit *>(control))
            box->clear();
        else if (auto *list = qobject_cast<QComboBox *>(control))
            list->setCurrentIndex(0);
    }
}

// The row

void TanimEkrani::Bul()
{
    // Before it is shown: what changes between the two is then asked about.
    m_loaded = LoadedRows(*oturum().Veritabani, recordRows());
    const Found found = readRow();
    if (found != Found::Refused)
        TusAC(found);
}

void TanimEkrani::pick()
{
    if (pickKey())
        Bul();
    else
        goTo(m_form.keys.first());
}

void TanimEkrani::save()
{
    if (!mayWrite() || !writeRow())
        return;
    const QString what = savedWhat();
    TusKapa();
    m_saved->tell(what);
}

bool TanimEkrani::mayWrite()
{
    return std::all_of(m_form.numbers.begin(), m_form.numbers.end(),
                       [this](QLineEdit *box) { return numberFits(*box); });
}

void TanimEkrani::removeFound()
{
    if (mayRemove() && removeRow())
        TusKapa();
}

bool TanimEkrani::store(const std::function<void(LoadedRows &)> &write)
{
    const SaveEnd end = saveOver(m_context.messages, this, m_loaded, write);
    if (end == SaveEnd::Theirs)
        Bul();
    else if (end == SaveEnd::Gone)
        TusKapa();
    return end == SaveEnd::Done;
}

// Numbers and texts

void TanimEkrani::showNumber(QLineEdit &box, double value, QStringView picture)
{
    box.setText(picture.isEmpty() ? plainNumber(value) : formatNumber(value, picture));
    m_shown.insert(&box, {box.text(), value});
}

double TanimEkrani::number(const QLineEdit &box) const
{
    const auto shown = m_shown.constFind(&box);
    return shown != m_shown.constEnd() && shown->text == box.text() ? shown->value
                                                                    : leadingNumber(box.text());
}

bool TanimEkrani::numberFits(QLineEdit &box)
{
    const FieldDef *field = m_table.field(box.objectName());
    const QString why =
        field == nullptr ? QString() : whyNumberDoesNotFit(*field, leadingNumber(box.text()));
    if (why.isEmpty())
        return true;
    warn(box.accessibleName() + u' ' + why);
    goTo(&box);
    return false;
}

void TanimEkrani::limitText(QLineEdit &box, QStringView field)
{
    if (const int longest = m_table.textLimit(field))
        box.setMaxLength(longest);
}

bool TanimEkrani::ask(const QString &text, const QString &title, MessageAnswer defaultAnswer)
{
    return m_context.messages.ask(this, text, MessageIcon::Exclamation, title, defaultAnswer);
}

void TanimEkrani::warn(const QString &text)
{
    m_context.messages.say(this, text, MessageIcon::Exclamation);
}

} // namespace kuyum
