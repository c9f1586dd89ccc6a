#pragma once

#include <functional>
#include <utility>

namespace kuyum {

/// How far a work is; false stops it.
using WorkProgress = std::function<bool(int done, int total)>;

/// One stage of a work of several: its own way from 0 to 1 laid on a part of
/// the whole, which is told in thousandths.
class WorkStage
{
public:
    WorkStage() = default; ///< of a work that nobody watches
    WorkStage(WorkProgress progress, int from, int to)
        : m_progress(std::move(progress)), m_from(from), m_to(to)
    {
    }

    /// A part of this stage, as a stage of its own.
    WorkStage part(double from, double to) const { return {m_progress, at(from), at(to)}; }
    /// False when the user stopped the work.
    bool tell(double share) const { return !m_progress || m_progress(at(share), 1000); }

private:
    int at(double share) const { return m_from + int((m_to - m_from) * share); }

    WorkProgress m_progress;
    int m_from = 0;
    int m_to = 0;
};

} // namespace kuyum
