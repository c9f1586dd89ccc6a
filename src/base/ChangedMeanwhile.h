#pragma once

#include <QList>
#include <QString>
#include <stdexcept>

namespace kuyum {

/// One thing in which a record that is to be saved differs from the one that
/// stands, as it is told to the user.
struct FieldChange
{
    QString record; ///< which row: "Satır A75 SR"
    QString field;
    QString loaded; ///< when the user opened it
    QString mine;
    QString standing;
    friend bool operator==(const FieldChange &, const FieldChange &) = default;
};

/// A save that would undo what another stored since the record was loaded.
/// Nothing was written; whoever saves asks the user.
class ChangedMeanwhile : public std::runtime_error
{
public:
    enum class Save { Changes, Removes };

    ChangedMeanwhile(const QList<FieldChange> &changes, Save save, bool stands)
        : std::runtime_error("Bu kayıt siz açtıktan sonra başka bir yerde değiştirilmiş. Hiçbir "
                             "şey yazılmadı."),
          m_changes(changes),
          m_save(save),
          m_stands(stands)
    {
    }

    const QList<FieldChange> &changes() const { return m_changes; }
    Save save() const { return m_save; }
    /// Whether there is still a record; another may have removed it.
    bool stands() const { return m_stands; }

private:
    QList<FieldChange> m_changes;
    Save m_save;
    bool m_stands;
};

} // namespace kuyum
