#pragma once

#include "Oturum.h"

#include <QMap>

namespace kuyum {

/// A way to save into the sample company and its registry, which share a folder.
struct SaveKind
{
    /// Leaves another record for every number.
    void (*save)(Oturum &, int number);
    /// The table that is written in a transaction of its own, before the rest.
    QString first = {};
    /// What there has to be before the first save.
    void (*prepare)(Database &company) = nullptr;
};

const QMap<QString, SaveKind> &saveKinds();

Oturum sessionIn(const QString &folder);

} // namespace kuyum
