#pragma once

#include "RawValue.h"
#include "TableDef.h"

#include <QDateTime>
#include <string>
#include <unordered_map>

namespace kuyum {

/// How a value of a legacy file is stored here. The sources are the bytes as
/// they stand in the file.

/// A Currency counts ten-thousandths. It is kept as a number as long as a
/// number of 15 significant digits holds it exactly, and as its exact decimal
/// text beyond that.
void storeCurrency(qint64 tenThousandths, RawValue &value);

/// The same for the text of a Decimal ("-12.3400").
void storeDecimal(const QByteArray &text, RawValue &value);

/// A Double or Single, bit for bit. Only minus zero, which no comparison and
/// no output can tell from zero, becomes zero: the engine cannot keep it.
void storeReal(double number, RawValue &value);

/// "{00112233-4455-6677-8899-AABBCCDDEEFF}" from the 16 bytes.
void storeGuid(const char *bytes, RawValue &value);

/// The moment that a legacy date counts: days since 30.12.1899, the time of
/// day as the fraction, which runs forward in negative ones too. Rounded to
/// whole seconds; invalid outside the years 100 to 9999.
QDateTime legacyMoment(double days);

/// Stores dates as ISO text. One that is outside the calendar stays the number
/// it is. Remembers the texts: few dates fill many rows.
class DateStorer
{
public:
    void store(double days, RawValue &value);

private:
    std::unordered_map<quint64, std::string> m_texts;
};

/// The default value of a field that the legacy engine keeps as an expression.
/// Invalid for one that is more than a plain value (such as Date()).
QVariant defaultValueOf(FieldType type, QString expression);

} // namespace kuyum
