#pragma once

#include "PrintDocument.h"

class QCommandLineParser;

namespace kuyum {

/// Where a word of the command line puts its label: into a PDF or a PNG file.
struct LabelOutput
{
    QString pdf;
    QString png;
    int dotsPerInch = 0;

    void write(const PrintDocument &document) const;
};

/// Adds --pdf, --png and --dpi.
void addLabelOutput(QCommandLineParser &parser);
/// What they say: exactly one file, and for a PNG its resolution. Throws
/// WrongUsage.
LabelOutput labelOutput(const QCommandLineParser &parser);

} // namespace kuyum
