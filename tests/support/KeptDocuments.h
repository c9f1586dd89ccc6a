#pragma once

#include "DocumentViewer.h"
#include "PrintDocument.h"

#include <QList>

namespace kuyum {

/// Keeps what a screen wanted to show.
class KeptDocuments : public DocumentViewer
{
public:
    void show(QWidget *, const PrintDocument &document) override { documents.append(document); }
    QList<PrintDocument> documents;
};

} // namespace kuyum
