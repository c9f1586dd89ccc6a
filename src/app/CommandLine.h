#pragma once

#include <QDate>
#include <QStringList>

namespace kuyum {

/// The words by which the program works without a window.

constexpr int exitRefused = 1;    ///< the reason is on standard error, in Turkish
constexpr int exitWrongUsage = 2; ///< the usage is on standard error

struct Command
{
    const char16_t *word;
    const char16_t *usage;
    /// Gets what follows the word; returns the exit code. May throw
    /// std::exception to refuse and WrongUsage for words it does not take.
    int (*run)(const QStringList &arguments);
    bool draws = false; ///< paints text, and so needs the fonts of a QGuiApplication
};

/// Thrown by a command whose words are off; main() shows the usage.
struct WrongUsage
{
};

/// The day.month.year that a word tells; WrongUsage when it tells none.
QDate dateWord(const QString &word);

/// The command of that word; null when there is none.
const Command *findCommand(const QString &word);
QString usageText();
/// Whether the word asks for the usage.
bool isHelp(const QString &word);

/// Runs a command and turns what it throws into messages and exit codes.
int runCommand(const Command &command, const QStringList &arguments);

/// A line on standard output or standard error, as UTF-8.
void printLine(const QString &line);
/// Whether all that was printed got somewhere, as far as is known yet.
bool outputStands();
/// The usage of all commands on standard output; returns the exit code.
int printUsage();
void printError(const QString &line);

int aktarCommand(const QStringList &arguments);
int barkodCommand(const QStringList &arguments);
int etiketCommand(const QStringList &arguments);
int fisCommand(const QStringList &arguments);
int katalogCommand(const QStringList &arguments);
int modelCommand(const QStringList &arguments);
int raporCommand(const QStringList &arguments);
int sorguCommand(const QStringList &arguments);
int uretimCommand(const QStringList &arguments);
int yedekleCommand(const QStringList &arguments);
int geriyukleCommand(const QStringList &arguments);
int denetleCommand(const QStringList &arguments);
int demoCommand(const QStringList &arguments);

} // namespace kuyum
