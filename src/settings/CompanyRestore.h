#pragma once

#include "Backup.h"

namespace kuyum {

struct Oturum;

/// Puts a backup in the place of the session's company, which is closed for it
/// and opened again. Returns where the replaced database was kept.
///
/// After a failure, which is thrown on, the company as it was is open again.
/// Only when even that fails is none open.
QString yedektenDon(Oturum &oturum, const QString &backup, const WorkProgress &progress);

} // namespace kuyum
