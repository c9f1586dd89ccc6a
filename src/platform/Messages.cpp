#include "Messages.h"

#include "EntryControls.h"

#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>

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

MessageAnswer MessageBoxes::show(QWidget *parent, const Message &message)
{
    QMessageBox box(boxIcon(message.icon), message.title, message.text, QMessageBox::NoButton,
                    parent);
    box.setTextFormat(Qt::PlainText);
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
