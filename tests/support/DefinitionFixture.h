#pragma once

#include "DocumentViewer.h"
#include "LabelPrinter.h"
#include "Oturum.h"
#include "PrintDocument.h"
#include "SampleCompany.h"
#include "ScreenContext.h"
#include "ScriptedMessages.h"
#include "SqliteEngine.h"
#include "Typing.h"

#include <QDialog>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

namespace kuyum {

/// Keeps what was to be shown.
struct KeptDocuments : DocumentViewer
{
    void show(QWidget *, const PrintDocument &document) override { shown.append(document); }
    bool wasPrinted() const override { return prints; }
    QList<PrintDocument> shown;
    bool prints = false; ///< whether what is shown is sent to a printer too
};

/// Keeps what was to be printed, or fails with a text.
struct KeptLabels : LabelPrinter
{
    void print(const PrintDocument &document, const QString &printerName) override
    {
        if (!failure.isEmpty())
            throw std::runtime_error(failure.toStdString());
        printed.append(document);
        printer = printerName;
    }
    QList<PrintDocument> printed;
    QString printer;
    QString failure;
};

/// A definition screen on a fresh copy of the sample company, with a lookup
/// list that answers as told beforehand.
template <typename Screen>
struct DefinitionFixture
{
    DefinitionFixture()
    {
        oturum.Veritabani = makeSampleCompany(dir.filePath(QStringLiteral("atolye.kuyum")));
        oturum.ResimYolu = dir.filePath(QStringLiteral("resim"));
        oturum.CalismaTarihi = QDate(2012, 6, 1);
        open();
    }

    void open()
    {
        const ScreenContext context{oturum, messages,
                                    [this](QWidget *parent, const LookupRequest &request) {
                                        asked.append(request);
                                        if (listIsWindow)
                                            openAndClose(parent);
                                        return answers.isEmpty() ? LookupAnswer()
                                                                 : answers.takeFirst();
                                    },
                                    viewer};
        if constexpr (std::is_constructible_v<Screen, ScreenContext, LabelPrinter &, Camera>)
            screen = std::make_unique<Screen>(context, labels, camera);
        else if constexpr (std::is_constructible_v<Screen, ScreenContext, Camera>)
            screen = std::make_unique<Screen>(context, camera);
        else
            screen = std::make_unique<Screen>(context);
        screen->show();
        QVERIFY(QTest::qWaitForWindowActive(screen.get()));
        QCOMPARE(sharedLetters(), QStringList());
    }

    template <typename Widget = QWidget>
    Widget *control(const QString &name) const
    {
        return screen->template findChild<Widget *>(name);
    }
    QString text(const QString &name) const
    {
        const auto *list = control<QComboBox>(name);
        return list != nullptr ? list->currentText() : control<QLineEdit>(name)->text();
    }
    QString focus() const
    {
        return screen->focusWidget() == nullptr ? QString() : screen->focusWidget()->objectName();
    }
    bool isEditing() const { return control(QStringLiteral("cmdKayit"))->isEnabled(); }

    /// The Alt letters that two controls of the screen have.
    QStringList sharedLetters() const
    {
        QStringList texts;
        for (const auto *label : screen->template findChildren<QLabel *>())
            texts.append(label->text());
        for (const auto *button : screen->template findChildren<QAbstractButton *>())
            texts.append(button->text());
        QSet<QKeySequence> seen;
        QStringList shared;
        for (const QString &text : texts) {
            const QKeySequence letter = QKeySequence::mnemonic(text);
            if (!letter.isEmpty() && seen.contains(letter))
                shared.append(text);
            seen.insert(letter);
        }
        return shared;
    }

    /// Keys go wherever the focus is, as a keyboard's do.
    void key(Qt::Key key, Qt::KeyboardModifiers held = Qt::NoModifier) const
    {
        QTest::keyClick(screen->focusWidget(), key, held);
    }
    /// Text and Enter, into one control after the other.
    void enter(const QStringList &texts = {QString()}) const
    {
        for (const QString &text : texts) {
            typeText(screen->focusWidget(), text);
            key(Qt::Key_Return);
        }
    }
    /// A button by its letter; the button takes a moment to go down and up.
    void press(Qt::Key letter, const QString &button) const
    {
        const QSignalSpy clicks(control<QPushButton>(button), &QPushButton::clicked);
        key(letter, Qt::AltModifier);
        QTRY_COMPARE(clicks.count(), 1);
    }
    static void openAndClose(QWidget *parent)
    {
        QDialog list(parent);
        QTimer::singleShot(0, &list, [&list] {
            QVERIFY(QTest::qWaitForWindowActive(&list));
            list.accept();
        });
        list.exec();
    }
    /// Presses the delete button and answers its question.
    void remove(const QString &question, MessageAnswer defaultAnswer, MessageAnswer answer,
                const QString &title = {})
    {
        messages.expect({.text = question,
                         .answer = answer,
                         .title = title,
                         .icon = MessageIcon::Exclamation,
                         .defaultAnswer = defaultAnswer});
        press(Qt::Key_S, QStringLiteral("cmdsil"));
        messages.verify();
    }
    void press(const QString &button) const { QTest::mouseClick(control(button), Qt::LeftButton); }

    /// The first row's fields as "a|b|c", a null as nothing; "none" without a row.
    QString row(const QString &sql) const
    {
        Recordset set = oturum.Veritabani->query(sql);
        if (!set.next())
            return QStringLiteral("none");
        QStringList fields;
        for (int i = 0; i < set.fieldCount(); ++i)
            fields.append(set.text(set.fieldName(i)));
        return fields.join(u'|');
    }

    using Camera = std::function<QImage(QWidget *parent, const QString &Secilen)>;

    QTemporaryDir dir;
    Oturum oturum;
    Camera camera; ///< none at first
    ScriptedMessages messages;
    QList<LookupRequest> asked;
    QList<LookupAnswer> answers;
    bool listIsWindow = false; ///< the list takes the focus from the screen for a moment
    KeptDocuments viewer;
    KeptLabels labels;
    std::unique_ptr<Screen> screen;
};

} // namespace kuyum
