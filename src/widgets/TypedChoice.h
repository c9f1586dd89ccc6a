#pragma once

class QCoreApplication;

namespace kuyum {

/// Makes every drop-down list, open or closed, choose the first entry that
/// begins with what is typed into it. Letter case does not count, and i, ı, I
/// and İ find each other, which Qt's own search does not do. Characters that
/// follow one another quickly are one text.
void chooseEntriesAsTyped(QCoreApplication &application);

} // namespace kuyum
