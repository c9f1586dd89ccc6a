#include "Messages.h"

#include "ChangeBox.h"
#include "EntryControls.h"

#include <algorithm>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>

using namespace Qt::StringLiterals;

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

/// Qt wraps the text at half the screen, and a long question on a small screen
/// would push its buttons out of it.
static void widenLongText(QMessageBox &box)
{
    constexpr int comfortable = 400;
    constexpr int aroundText = 160;
    auto *label = box.findChild<QLabel *>(u"qt_msgbox_label"_s);
    if (label == nullptr)
        return;
    const int widest = label->fontMetrics().size(0, box.text()).width();
    const int room = box.screen()->availableSize().width() - aroundText;
    label->setMinimumWidth(std::min({widest, room, comfortable}));
}

MessageAnswer MessageBoxes::show(QWidget *parent, const Message &message)
{
    QMessageBox box(boxIcon(message.icon), message.title, message.text, QMessageBox::NoButton,
                    parent);
    box.setTextFormat(Qt::PlainText);
    widenLongText(box);
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
    dialog.setWindowTitle(title);
    dialog.setLabelText(prompt);
    dialog.setTextValue(preset);
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
