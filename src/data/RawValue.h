#pragma once

#include <QtGlobal>
#include <string>
#include <string_view>

namespace kuyum {

/// One field's value as the engine stores it, without the cost of a QVariant:
/// what a take-over moves by the million. Text is UTF-8.
struct RawValue
{
    enum class Kind : char { Null, Integer, Real, Text, Blob };

    Kind kind = Kind::Null;
    qint64 integer = 0;
    double real = 0;
    std::string bytes; ///< of a Text or Blob; its memory is used again

    void setNull() { kind = Kind::Null; }
    void setInteger(qint64 value)
    {
        kind = Kind::Integer;
        integer = value;
    }
    void setReal(double value)
    {
        kind = Kind::Real;
        real = value;
    }
    void setBytes(Kind textOrBlob, const char *data, size_t size)
    {
        kind = textOrBlob;
        bytes.assign(data, size);
    }
    void setText(std::string_view utf8) { setBytes(Kind::Text, utf8.data(), utf8.size()); }
};

} // namespace kuyum
