#include "ScriptedMessages.h"

#include <QtTest>

using namespace Qt::StringLiterals;

namespace kuyum {

static void failTest(const QString &text)
{
    QTest::qFail(qPrintable(text), __FILE__, __LINE__);
}

template <typename Value>
static void compareIfSet(const std::optional<Value> &expected, const Value &actual,
                         const QString &what)
{
    if (expected.has_value() && *expected != actual)
        failTest(what);
}

ScriptedMessages::~ScriptedMessages()
{
    if (QTest::currentTestFunction() != nullptr)
        verify();
}

void ScriptedMessages::expect(const QString &text, MessageAnswer answer)
{
    expect(Expected{.text = text, .answer = answer});
}

void ScriptedMessages::expect(const Expected &expected)
{
    m_script.append(Step{.expected = expected});
}

void ScriptedMessages::expectInput(const QString &prompt, const std::optional<QString> &answer,
                                   const std::optional<QString> &title)
{
    m_script.append(
        Step{.expected = {.text = prompt, .title = title}, .isInput = true, .inputAnswer = answer});
}

void ScriptedMessages::expectChange(const QStringList &differences, ChangeAnswer answer,
                                    const std::function<void()> &meanwhile)
{
    m_script.append(Step{.expected = {.text = differences.join(u'\n'), .meanwhile = meanwhile},
                         .change = answer});
}

void ScriptedMessages::verify()
{
    for (const Step &step : std::exchange(m_script, {}))
        failTest(u"never shown: \"%1\""_s.arg(step.expected.text));
}

std::optional<ScriptedMessages::Step> ScriptedMessages::take(bool isInput, const QString &text)
{
    if (m_script.isEmpty()) {
        failTest(u"not expected: \"%1\""_s.arg(text));
        return std::nullopt;
    }
    const Step step = m_script.takeFirst();
    const bool same =
        step.expected.begins ? text.startsWith(step.expected.text) : text == step.expected.text;
    if (step.isInput != isInput || !same) {
        failTest(u"expected: \"%1\", shown: \"%2\""_s.arg(step.expected.text, text));
        return std::nullopt;
    }
    return step;
}

MessageAnswer ScriptedMessages::show(QWidget *, const Message &message)
{
    const bool isQuestion = message.buttons == MessageButtons::YesNo;
    const std::optional<Step> step = take(false, message.text);
    if (!step.has_value())
        return isQuestion ? MessageAnswer::No : MessageAnswer::Ok;

    const Expected &expected = step->expected;
    const QString shown = u" of \"%1\""_s.arg(message.text);
    compareIfSet(expected.title, message.title, u"title \"%1\""_s.arg(message.title) + shown);
    compareIfSet(expected.icon, message.icon, u"icon"_s + shown);
    compareIfSet(expected.defaultAnswer, message.defaultAnswer, u"default answer"_s + shown);
    if ((expected.answer != MessageAnswer::Ok) != isQuestion)
        failTest((isQuestion ? u"a question is no message:"_s : u"a message is no question:"_s) +
                 shown);
    if (expected.meanwhile)
        expected.meanwhile();
    return expected.answer;
}

std::optional<QString> ScriptedMessages::input(QWidget *, const QString &prompt,
                                               const QString &title, const QString &)
{
    const std::optional<Step> step = take(true, prompt);
    if (step.has_value())
        compareIfSet(step->expected.title, title, u"title \"%1\" of \"%2\""_s.arg(title, prompt));
    return step.has_value() ? step->inputAnswer : std::nullopt;
}

ChangeAnswer ScriptedMessages::choose(QWidget *, const ChangedMeanwhile &changed)
{
    QStringList differences;
    for (const FieldChange &change : changed.changes())
        differences.append(
            QStringList{change.record, change.field, change.mine, change.standing}.join(u'|'));
    const std::optional<Step> step = take(false, differences.join(u'\n'));
    if (!step.has_value() || !step->change.has_value())
        return ChangeAnswer::Back;
    if (step->expected.meanwhile)
        step->expected.meanwhile();
    return *step->change;
}

} // namespace kuyum
