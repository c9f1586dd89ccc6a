#pragma once

#include "SiparisKontrol.h"

namespace kuyum {

struct KeptLine;
struct Siparis;

/// The first of these lines as "A75 BY, 3 adet; ...".
QString namesOf(const QList<KeptLine> &lines);

/// What becomes of an order's lines that its grid has no cell for: in a save,
/// in a copy, on the slip, and when their row goes. Empty for none.
QString keptLinesNote(const Siparis &siparis, const HasModel &hasModel);

} // namespace kuyum
