#pragma once

#include <QStringList>

namespace kuyum {

/// Whether the word after `rapor` names a report on one order.
bool isOrderReport(const QString &word);

/// kuyum rapor siparis-tas|yarimamul DATABASE ORDER ...: throws as commands do.
int siparisRaporCommand(const QStringList &arguments);

} // namespace kuyum
