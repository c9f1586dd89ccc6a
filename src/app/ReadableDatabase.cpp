#include "ReadableDatabase.h"

#include "LegacyPath.h"
#include "OutputPlace.h"
#include "Schema.h"
#include "TakeOver.h"

using namespace Qt::StringLiterals;

namespace kuyum {

ReadableDatabase openForReading(const QString &path)
{
    ReadableDatabase result;
    const QString source = writtenPath(path);
    QString file = source;
    if (isLegacyPath(path)) {
        result.folder = std::make_unique<QTemporaryDir>();
        if (!result.folder->isValid())
            throw DatabaseError(u"Geçici klasör açılamadı: "_s + result.folder->errorString());
        file = result.folder->filePath(u"okunan.kuyum"_s);
        TakeOver(source, file).run();
    }
    result.db = Database::open(file, Database::Access::ReadOnly);
    if (result.db->schemaVersion() > currentSchemaVersion) {
        throw DatabaseError(u"Bu dosya programın daha yeni bir sürümü ile yazılmış, açılamaz: "_s +
                            path);
    }
    return result;
}

} // namespace kuyum
