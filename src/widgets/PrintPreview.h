#pragma once

#include "DocumentViewer.h"
#include "PrintDocument.h"

#include <functional>
#include <memory>
#include <QDialog>
#include <QKeySequence>

class QAbstractButton;
class QComboBox;
class QLabel;
class QPrinter;
class QPrintPreviewWidget;
class QPushButton;
class QToolButton;

namespace kuyum {

class Messages;
class Printers;

/// Asks where a PDF is to be saved, offering a file name; empty for nowhere.
using PdfChooser = std::function<QString(QWidget *parent, const QString &suggestion)>;

/// A document as it will stand on paper. Printed from here and saved as PDF.
class PrintPreview : public QDialog
{
    Q_OBJECT

public:
    PrintPreview(const PrintDocument &document, Printers &printers, Messages &messages,
                 QWidget *parent);
    ~PrintPreview() override;

    void setPdfChooser(PdfChooser chooser) { m_choosePdf = std::move(chooser); }
    int currentPage() const;

private:
    QWidget *makePageBar();
    QWidget *makePrintBar();
    /// A button and the key that does the same.
    struct Control
    {
        QString name;
        QString text;
        QKeySequence key;
        std::function<void()> action;
        QString about = {}; ///< where the text does not say it all
    };
    QPushButton *makeButton(const Control &control);
    QToolButton *makeSmallButton(const Control &control);
    void bind(QAbstractButton &button, const Control &control);
    void addKeys();
    void fillPrinters();
    void paint(QPrinter *printer) const;
    void goTo(int page);
    void tellPage();
    void setOffset();
    void print();
    void savePdf();

    PrintDocument m_document;
    Printers &m_printers;
    Messages &m_messages;
    PdfChooser m_choosePdf;
    std::unique_ptr<QPrinter> m_paper; ///< what the preview believes to print on
    QPrintPreviewWidget *m_pages = nullptr;
    QLabel *m_pageLabel = nullptr;
    QComboBox *m_printerList = nullptr;
    QToolButton *m_offsetButton = nullptr;
};

/// Opens the preview.
class PreviewViewer : public DocumentViewer
{
public:
    PreviewViewer(Printers &printers, Messages &messages)
        : m_printers(printers), m_messages(messages)
    {
    }
    void show(QWidget *parent, const PrintDocument &document) override;
    bool wasPrinted() const override { return m_wasPrinted; }

private:
    Printers &m_printers;
    Messages &m_messages;
    bool m_wasPrinted = false;
};

} // namespace kuyum
