#include "DemoRow.h"

#include "Recordset.h"

namespace kuyum {

void addRow(Recordset &rows, std::initializer_list<DemoField> fields)
{
    rows.addNew();
    for (const DemoField &field : fields)
        rows.set(field.name, field.value);
    rows.update();
}

} // namespace kuyum
