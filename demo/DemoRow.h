#pragma once

#include <initializer_list>
#include <QStringView>
#include <QVariant>

namespace kuyum {

class Recordset;

struct DemoField
{
    QStringView name;
    QVariant value;
};

/// Adds one row with these fields.
void addRow(Recordset &rows, std::initializer_list<DemoField> fields);

} // namespace kuyum
