#pragma once

#include <optional>
#include <QString>

class QWidget;

namespace kuyum {

class ChangedMeanwhile;

enum class MessageIcon { None, Information, Exclamation, Critical };
enum class MessageButtons { Ok, YesNo };
enum class MessageAnswer { Ok, Yes, No };
/// Whose record stays, where two changed it: this screen's, the other's, or
/// neither yet.
enum class ChangeAnswer { Back, Mine, Theirs };

struct Message
{
    QString text;
    QString title = {};
    MessageIcon icon = MessageIcon::None;
    MessageButtons buttons = MessageButtons::Ok;
    MessageAnswer defaultAnswer = MessageAnswer::Yes; ///< of a question
};

/// The one seam through which screens speak to the user. The program shows
/// modal boxes; the tests script the answers.
class Messages
{
public:
    virtual ~Messages() = default;

    /// Shows a message or asks a question, and returns what was chosen. Closing
    /// the box is No for a question.
    virtual MessageAnswer show(QWidget *parent, const Message &message) = 0;
    /// Asks for a line of text; nothing when the box was left without an answer.
    virtual std::optional<QString> input(QWidget *parent, const QString &prompt,
                                         const QString &title, const QString &preset) = 0;
    /// Shows in what a record that is to be saved differs from the one that
    /// another stored meanwhile. Closing the box is Back.
    virtual ChangeAnswer choose(QWidget *parent, const ChangedMeanwhile &changed) = 0;

    void say(QWidget *parent, const QString &text, MessageIcon icon = MessageIcon::None,
             const QString &title = {})
    {
        show(parent, {text, title, icon});
    }
    /// A Yes/No question; true for Yes.
    bool ask(QWidget *parent, const QString &text, MessageIcon icon, const QString &title = {},
             MessageAnswer defaultAnswer = MessageAnswer::Yes)
    {
        return show(parent, {text, title, icon, MessageButtons::YesNo, defaultAnswer}) ==
               MessageAnswer::Yes;
    }
};

/// The boxes of the program itself.
class MessageBoxes : public Messages
{
public:
    MessageAnswer show(QWidget *parent, const Message &message) override;
    std::optional<QString> input(QWidget *parent, const QString &prompt, const QString &title,
                                 const QString &preset) override;
    ChangeAnswer choose(QWidget *parent, const ChangedMeanwhile &changed) override;
};

} // namespace kuyum
