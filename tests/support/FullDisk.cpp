#include "FullDisk.h"

#include <limits>
#include <sqlite3.h>

namespace kuyum {

struct FullDisk::Room
{
    qint64 bytes = std::numeric_limits<qint64>::max();
    qint64 writesLeft = std::numeric_limits<qint64>::max();
    qint64 writes = 0;
    bool wasFull = false;
    sqlite3_vfs *below = nullptr;
    sqlite3_vfs layer = {};

    bool takes(qint64 count)
    {
        ++writes;
        if (bytes < count || writesLeft <= 0) {
            wasFull = true;
            return false;
        }
        bytes -= count;
        --writesLeft;
        return true;
    }
};

namespace {

/// A file of the layer; the one below follows it in the same memory.
struct LayerFile
{
    sqlite3_file base;
    FullDisk::Room *room;
    sqlite3_file *below() { return reinterpret_cast<sqlite3_file *>(this + 1); }
};

LayerFile *layerFile(sqlite3_file *file)
{
    return reinterpret_cast<LayerFile *>(file);
}

/// Calls the method of that place of the file below.
template <auto Method>
struct Forward;
template <typename... Arguments, int (*sqlite3_io_methods::*Method)(sqlite3_file *, Arguments...)>
struct Forward<Method>
{
    static int call(sqlite3_file *file, Arguments... arguments)
    {
        sqlite3_file *below = layerFile(file)->below();
        return (below->pMethods->*Method)(below, arguments...);
    }
};

int writeFile(sqlite3_file *file, const void *bytes, int count, sqlite3_int64 offset)
{
    if (!layerFile(file)->room->takes(count))
        return SQLITE_FULL;
    return Forward<&sqlite3_io_methods::xWrite>::call(file, bytes, count, offset);
}

sqlite3_io_methods layerMethods()
{
    sqlite3_io_methods methods = {};
    methods.iVersion = 1; // without memory mapping: every byte comes by
    methods.xClose = Forward<&sqlite3_io_methods::xClose>::call;
    methods.xRead = Forward<&sqlite3_io_methods::xRead>::call;
    methods.xWrite = writeFile;
    methods.xTruncate = Forward<&sqlite3_io_methods::xTruncate>::call;
    methods.xSync = Forward<&sqlite3_io_methods::xSync>::call;
    methods.xFileSize = Forward<&sqlite3_io_methods::xFileSize>::call;
    methods.xLock = Forward<&sqlite3_io_methods::xLock>::call;
    methods.xUnlock = Forward<&sqlite3_io_methods::xUnlock>::call;
    methods.xCheckReservedLock = Forward<&sqlite3_io_methods::xCheckReservedLock>::call;
    methods.xFileControl = Forward<&sqlite3_io_methods::xFileControl>::call;
    methods.xSectorSize = Forward<&sqlite3_io_methods::xSectorSize>::call;
    methods.xDeviceCharacteristics = Forward<&sqlite3_io_methods::xDeviceCharacteristics>::call;
    return methods;
}

int openFile(sqlite3_vfs *layer, const char *name, sqlite3_file *file, int flags, int *outFlags)
{
    static const sqlite3_io_methods methods = layerMethods();
    auto *room = static_cast<FullDisk::Room *>(layer->pAppData);
    LayerFile *opened = layerFile(file);
    opened->room = room;
    opened->base.pMethods = nullptr;
    const int result = room->below->xOpen(room->below, name, opened->below(), flags, outFlags);
    if (opened->below()->pMethods != nullptr)
        opened->base.pMethods = &methods;
    return result;
}

} // namespace

FullDisk::FullDisk() : m_room(std::make_unique<Room>())
{
    m_room->below = sqlite3_vfs_find(nullptr);
    // All else is the system's own: it finds its data through itself.
    m_room->layer = *m_room->below;
    m_room->layer.zName = "full-disk";
    m_room->layer.pNext = nullptr;
    m_room->layer.szOsFile = int(sizeof(LayerFile)) + m_room->below->szOsFile;
    m_room->layer.pAppData = m_room.get();
    m_room->layer.xOpen = openFile;
    sqlite3_vfs_register(&m_room->layer, 1);
}

FullDisk::~FullDisk()
{
    sqlite3_vfs_unregister(&m_room->layer);
    sqlite3_vfs_register(m_room->below, 1);
}

void FullDisk::takeBytes(qint64 count)
{
    empty();
    m_room->bytes = count;
}

void FullDisk::takeWrites(qint64 count)
{
    empty();
    m_room->writesLeft = count;
}

void FullDisk::empty()
{
    m_room->bytes = m_room->writesLeft = std::numeric_limits<qint64>::max();
    m_room->writes = 0;
    m_room->wasFull = false;
}

qint64 FullDisk::writes() const
{
    return m_room->writes;
}

bool FullDisk::wasFull() const
{
    return m_room->wasFull;
}

} // namespace kuyum
