#pragma once

namespace kuyum {

struct Oturum;

/// Gives a working date that has no exchange rates yet a copy of the latest
/// earlier ones; all of them or none. Throws DatabaseError.
void carryRatesForward(Oturum &oturum);

} // namespace kuyum
