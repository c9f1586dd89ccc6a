#pragma once

#include "Ean13.h"

#include <optional>

namespace kuyum {

/// The symbologies beside EAN-13.
enum class Symbology { Code39, Code128, Interleaved2of5, Codabar };

/// By the word of the command line: "code39", "code128", "2of5", "codabar".
std::optional<Symbology> symbologyNamed(QStringView word);

/// Encodes a text, with a quiet zone of ten modules on both sides. Throws
/// std::runtime_error with a Turkish text that names a character which cannot
/// be encoded, and for an empty text.
///
/// - Code 39: between two "*", without a check character.
/// - Code 128: code set B with its check character.
/// - Interleaved 2 of 5: an odd number of digits gets a leading 0.
/// - Codabar: between two "A", unless the text brings a start and a stop
///   letter (A to D) of its own.
void encode(Symbology symbology, const QString &text, const TakeBarPart &take);

} // namespace kuyum
