#pragma once

class QWidget;

namespace kuyum {

class PrintDocument;

/// The seam through which a screen hands a finished document to the user. The
/// program opens the preview, from which it is printed or saved; the tests
/// keep the document and look at it.
class DocumentViewer
{
public:
    virtual ~DocumentViewer() = default;

    /// Shows the document modally over parent; returns when the user is done.
    virtual void show(QWidget *parent, const PrintDocument &document) = 0;
    /// Whether the document shown last went to a printer.
    virtual bool wasPrinted() const { return false; }
};

} // namespace kuyum
