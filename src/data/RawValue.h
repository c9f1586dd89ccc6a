#pragma once

#include <QByteArray>

/// One field's value as the engine stores it, without the cost of a QVariant:
/// what a take-over moves by the million. Text is UTF-8.
struct RawValue
{
    enum class Kind : char { Null, Integer, Real, Text, Blob };

    Kind kind = Kind::Null;
    qint64 integer = 0;
    double real = 0;
    QByteArray bytes; ///< of a Text or Blob; its memory is used again

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
    void setBytes(Kind textOrBlob, const char *data, qsizetype size)
    {
        kind = textOrBlob;
        bytes.resize(0);
        bytes.append(data, size);
    }
    void setText(const QByteArray &utf8) { setBytes(Kind::Text, utf8.constData(), utf8.size()); }
};
