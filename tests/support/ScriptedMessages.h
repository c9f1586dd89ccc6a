#pragma once

#include "ChangedMeanwhile.h"
#include "Messages.h"

#include <functional>
#include <QList>

namespace kuyum {

/// The user's answers in a test, written down beforehand in their order:
///
///     ScriptedMessages messages;
///     messages.expect(u"KAYIT SILINECEK ?"_s, MessageAnswer::Yes);
///     messages.expect({.text = u"KAYIT BULUNAMADI..."_s, .title = u"HATA"_s});
///     messages.expectInput(u"Katalog adı"_s, u"Yaz"_s);
///     ... keys ...
///     messages.verify();
///
/// A message that was not expected fails the test, and so does, in verify()
/// and at the end of the script's life, an expected one that never came.
class ScriptedMessages : public Messages
{
public:
    /// What is left unset here is not looked at.
    struct Expected
    {
        QString text;
        MessageAnswer answer = MessageAnswer::Ok;
        std::optional<QString> title = {};
        std::optional<MessageIcon> icon = {};
        std::optional<MessageAnswer> defaultAnswer = {}; ///< of a question
        std::function<void()> meanwhile = {};            ///< run while the box stands open
        bool begins = false;                             ///< the message goes on after the text
    };

    ScriptedMessages() = default;
    ScriptedMessages(const ScriptedMessages &) = delete;
    ScriptedMessages &operator=(const ScriptedMessages &) = delete;
    ~ScriptedMessages() override;

    /// Ok expects a message, Yes and No expect a question.
    void expect(const QString &text, MessageAnswer answer = MessageAnswer::Ok);
    void expect(const Expected &expected);
    /// Nothing as the answer leaves the box without one.
    void expectInput(const QString &prompt, const std::optional<QString> &answer,
                     const std::optional<QString> &title = {});

    /// Expects to be told that another changed the record: the differences as
    /// "record|field|mine|standing".
    void expectChange(const QStringList &differences, ChangeAnswer answer,
                      const std::function<void()> &meanwhile = {});

    /// Fails the test when something expected has not come.
    void verify();
    /// How many expected messages have not come yet.
    qsizetype remaining() const { return m_script.size(); }

    MessageAnswer show(QWidget *parent, const Message &message) override;
    std::optional<QString> input(QWidget *parent, const QString &prompt, const QString &title,
                                 const QString &preset) override;
    ChangeAnswer choose(QWidget *parent, const ChangedMeanwhile &changed) override;

private:
    struct Step
    {
        Expected expected;
        bool isInput = false;
        std::optional<QString> inputAnswer = {};
        std::optional<ChangeAnswer> change = {};
    };

    std::optional<Step> take(bool isInput, const QString &text);

    QList<Step> m_script;
};

} // namespace kuyum
