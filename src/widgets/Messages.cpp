#include "Messages.h"

#include "ChangeBox.h"
#include "EntryControls.h"

#include <algorithm>
#include <QInputDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace kuyum {

static QMessageBox::Icon boxIcon(MessageIcon icon)
{
    switch (icon) {
    case MessageIcon::Information:
        return QMessageBox::Information;
    case MessageIcon::Exclamation:
        return QMessageBox::Warning;
    case MessageIcon::Critical:
        return QMessageBox::Critical;
    case MessageIcon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

namespace {

// In pixels. Qt makes no message wider than these, and past them breaks words anywhere.
constexpr int largeScreen = 1024;
constexpr int besideLargeBox = 480;

constexpr int comfortableLine = 600;
constexpr int shortestLine = 400;
constexpr int besideText = 120;  ///< icon and margins
constexpr int belowText = 150;   ///< buttons, margins and the window's frame
constexpr int besideTitle = 130; ///< the window's own buttons

QString titleOf(const QString &title)
{
    return title.isEmpty() ? u"Kuyum"_s : title;
}

int roomForLines(const QWidget &box)
{
    const int screen = box.screen()->availableSize().width();
    const int widest = (screen > largeScreen ? screen - besideLargeBox : screen) - besideText;
    return std::clamp(widest, shortestLine, comfortableLine);
}

/// Lets a run of letters that is wider than a line, as a path can be, go on in
/// the next one, behind a separator where it has any.
QString withBreaks(const QString &text, const QFontMetrics &metrics, int line)
{
    constexpr QChar mayBreakHere(0x200b);
    constexpr int mostTogether = 24;
    static const QRegularExpression run(u"\\S+"_s);
    QString broken = text;
    qsizetype inserted = 0;
    for (const QRegularExpressionMatch &match : run.globalMatch(text)) {
        const QString whole = match.captured();
        if (metrics.horizontalAdvance(whole) <= line)
            continue;
        int together = 0;
        for (qsizetype i = 0; i < whole.size(); ++i) {
            const bool separates = whole[i] == u'/' || whole[i] == u'\\';
            if (!separates && ++together < mostTogether)
                continue;
            together = 0;
            broken.insert(match.capturedStart() + i + 1 + inserted++, mayBreakHere);
        }
    }
    return broken;
}

/// Puts the text into a view that scrolls, where it is higher than the screen.
void scrollHighText(QMessageBox &box, QLabel *label, int width)
{
    const int room = box.screen()->availableSize().height() - belowText;
    if (label->heightForWidth(width) <= room)
        return;
    auto *view = new QScrollArea(&box);
    delete box.layout()->replaceWidget(label, view);
    view->setWidget(label);
    view->setWidgetResizable(true);
    view->setFrameShape(QFrame::NoFrame);
    view->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    view->setMinimumSize(width + view->verticalScrollBar()->sizeHint().width(), room);
}

/// Qt would wrap the text at half the screen, and cut off the end of a line
/// without blanks.
void showWholeText(QMessageBox &box)
{
    auto *label = box.findChild<QLabel *>(u"qt_msgbox_label"_s);
    if (label == nullptr)
        return;
    const int line = roomForLines(box);
    label->ensurePolished();
    const int aroundLetters = label->indent() + label->contentsMargins().left();
    label->setText(withBreaks(box.text(), label->fontMetrics(), line - aroundLetters));
    const int natural = label->sizeHint().width();
    label->setWordWrap(natural > line);
    const int title = box.fontMetrics().horizontalAdvance(box.windowTitle()) + besideTitle;
    label->setMinimumWidth(std::min(std::max(natural, title), line));
    scrollHighText(box, label, label->minimumWidth());
}

/// Wide enough to type a sentence, and for the title.
void showWholePrompt(QInputDialog &dialog)
{
    const int line = roomForLines(dialog);
    for (auto *label : dialog.findChildren<QLabel *>())
        label->setWordWrap(label->sizeHint().width() > line);
    const int title = dialog.fontMetrics().horizontalAdvance(dialog.windowTitle()) + besideTitle;
    const int screen = dialog.screen()->availableSize().width() - besideText / 2;
    // The dialog takes its own size from what stands in it.
    for (auto *box : dialog.findChildren<QLineEdit *>())
        box->setMinimumWidth(std::min(std::max(line, title), screen));
}

} // namespace

MessageAnswer MessageBoxes::show(QWidget *parent, const Message &message)
{
    QMessageBox box(boxIcon(message.icon), titleOf(message.title), message.text,
                    QMessageBox::NoButton, parent);
    box.setTextFormat(Qt::PlainText);
    showWholeText(box);
    if (message.buttons == MessageButtons::Ok) {
        ignoreHeldEnter(*box.addButton(u"&Tamam"_s, QMessageBox::AcceptRole));
        box.exec();
        return MessageAnswer::Ok;
    }
    QPushButton *yes = box.addButton(u"&Evet"_s, QMessageBox::YesRole);
    QPushButton *no = box.addButton(u"&Hayır"_s, QMessageBox::NoRole);
    // Held down from what led to the question, it would answer it unread.
    ignoreHeldEnter(*yes);
    ignoreHeldEnter(*no);
    box.setDefaultButton(message.defaultAnswer == MessageAnswer::No ? no : yes);
    box.setEscapeButton(no);
    box.exec();
    return box.clickedButton() == yes ? MessageAnswer::Yes : MessageAnswer::No;
}

std::optional<QString> MessageBoxes::input(QWidget *parent, const QString &prompt,
                                           const QString &title, const QString &preset)
{
    QInputDialog dialog(parent);
    dialog.setWindowTitle(titleOf(title));
    dialog.setLabelText(prompt);
    dialog.setTextValue(preset);
    showWholePrompt(dialog);
    dialog.setOkButtonText(u"&Tamam"_s);
    dialog.setCancelButtonText(u"&Vazgeç"_s);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.textValue();
}

ChangeAnswer MessageBoxes::choose(QWidget *parent, const ChangedMeanwhile &changed)
{
    ChangeBox box(changed, parent);
    box.exec();
    return box.answer();
}

} // namespace kuyum
