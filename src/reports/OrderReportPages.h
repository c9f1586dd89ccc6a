#pragma once

#include "PrintDocument.h"
#include "ReportTable.h"

namespace kuyum {

struct SiparisBasligi;

/// The stones of an order on paper, with the table's rows as they stand.
PrintDocument stonePages(const SiparisBasligi &siparis, const ReportTable &taslar);

/// Its models and, from a page of their own on, its molds.
PrintDocument foundryPages(const SiparisBasligi &siparis, const ReportTable &modeller,
                           const ReportTable &kaliplar);

/// A table's title with the order that it is of.
QString sheetTitle(const SiparisBasligi &siparis, const ReportTable &table);

} // namespace kuyum
