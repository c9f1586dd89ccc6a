#pragma once

#include <optional>
#include <QList>
#include <QString>

namespace kuyum {

class Database;

/// A company as the registry has it, paths in their Windows spelling.
struct Sirket
{
    qint32 Srkkod = 0;
    QString Srkadi;
    QString DataYolu;
    QString ResimYolu;
    QString Transferyolu;
};

/// The companies of the registry: the rows of SirketKayit whose turkod is
/// "048". Throws DatabaseError.
class RegistryStore
{
public:
    explicit RegistryStore(Database &registry) : m_registry(registry) {}

    /// Whether there is no row at all, of whatever kind.
    bool isEmpty();
    /// In the order of their codes.
    QList<Sirket> companies();
    std::optional<Sirket> find(qint32 Srkkod);
    /// Writes the paths of a company that is there.
    void savePaths(const Sirket &sirket);

private:
    Database &m_registry;
};

} // namespace kuyum
