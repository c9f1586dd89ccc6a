#pragma once

#include <optional>
#include <QByteArray>
#include <QString>

namespace kuyum {

/// The Turkish code page of Windows, in which passwords are scrambled and in
/// which older programs wrote their text files. Codes without a character of
/// their own stand for themselves, so that every code comes back.

char16_t windows1254Character(quint8 code);
/// Nothing for a character that the code page does not have.
std::optional<quint8> windows1254Code(QChar character);

enum class TextCode { Utf8, Windows1254 };

/// A text file's code: UTF-8 when it reads as such, as nearly no text of the
/// code page does that has a Turkish letter in it.
TextCode textCodeOf(const QByteArray &bytes);
/// A file's text, in whichever of the two codes it is.
QString decodedText(const QByteArray &bytes);
/// Nothing when the code lacks a character of the text.
std::optional<QByteArray> encodedText(const QString &text, TextCode code);

} // namespace kuyum
