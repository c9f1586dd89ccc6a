#pragma once

#include "ProductLabel.h"

namespace kuyum {

struct Oturum;

/// What a scanned product label stands for.
struct LabelledModel
{
    enum class State {
        Unknown,   ///< no model ever had it
        Found,     ///< the model and its type are there
        ModelGone, ///< the model was removed; its name is told
        TypeGone   ///< the model is there, its product type is not
    };

    State state = State::Unknown;
    QString Model;
    QString KisaAD; ///< the type's short name; empty where the type is gone
    qint32 TipID = 0;

    bool isFound() const { return state == State::Found; }
    /// Why there is nothing to take, in Turkish.
    QString whyNot() const;
};

/// Finds the models of labels. A save gives a model new record numbers, and
/// labels with the old ones stay on goods for years: those numbers are kept in
/// `EskiEtiket` and mean the model still.
class LabelLookup
{
public:
    explicit LabelLookup(Oturum &oturum) : m_oturum(&oturum) {}

    /// Reads and finds a scanned text; nothing for one that is no label.
    /// Throws DatabaseError.
    std::optional<LabelledModel> find(QStringView text) const;
    /// The record number that a model has now which once had this one: the same
    /// while it stands, and where the model is gone. Throws DatabaseError.
    qint32 standingRecord(qint32 Model_ID) const;

private:
    std::optional<LabelledModel> byRecord(const ProductLabel &label) const;
    std::optional<LabelledModel> byOldRecord(const ProductLabel &label) const;
    std::optional<LabelledModel> first(const QString &condition) const;
    QString shortName(qint32 TipID) const;

    Oturum *m_oturum;
};

/// Keeps the record numbers that a model has now as those of its old labels.
/// Belongs into the transaction that replaces or removes the records. Throws
/// DatabaseError.
void retireLabels(Oturum &oturum, const QString &model, qint32 TipID);

} // namespace kuyum
