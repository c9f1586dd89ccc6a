#pragma once

namespace kuyum {

class Messages;
struct Oturum;

/// Makes the day's copy of the open company on its first start of a day, told
/// only when it takes long. A copy that cannot be made keeps nobody from
/// working; a database that turns out damaged is offered to be replaced by its
/// newest good backup. False when no database is open any more.
bool backUpDaily(Oturum &oturum, Messages &messages);

} // namespace kuyum
