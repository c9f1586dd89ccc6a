#pragma once

#include "LoadedRows.h"
#include "Messages.h"

namespace kuyum {

/// What became of a save or a removal.
enum class SaveEnd {
    Done,
    Theirs, ///< nothing was written: the screen shows the record as it stands
    Gone,   ///< nothing was written: there is no such record any more
    Back    ///< nothing was written: the screen stays as it was typed
};

/// Runs a save or a removal of a loaded record. Where it would undo what
/// another stored meanwhile, the user chooses; what he chose to write over is
/// what he saw, and a change after that asks again.
template <typename Save>
SaveEnd saveOver(Messages &messages, QWidget *parent, LoadedRows &loaded, Save &&save)
{
    for (;;) {
        try {
            save(loaded);
            return SaveEnd::Done;
        } catch (const ChangedMeanwhile &changed) {
            const ChangeAnswer answer = messages.choose(parent, changed);
            if (answer == ChangeAnswer::Theirs)
                return changed.stands() ? SaveEnd::Theirs : SaveEnd::Gone;
            if (answer == ChangeAnswer::Back)
                return SaveEnd::Back;
            loaded.acceptStanding();
        }
    }
}

} // namespace kuyum
