#include "tests/reliability/FaultInjection.h"

#include <new>
#include <optional>
#include <sqlite3.h>
#include <stdexcept>

namespace FaultInjection {

namespace {

std::optional<Fault> armedFault;
int operationsLeft = 0;
std::string failed;

/// Whether the operation that begins, and that the fault can befall, is the one that fails.
bool isDue(Fault fault, const char* operation)
{
    if (armedFault != fault || --operationsLeft != 0) {
        return false;
    }
    armedFault.reset();
    failed = operation;
    return true;
}

/// Runs an operation that changes nothing outside SQLite.
template <typename Operation>
int look(const char* name, int error, Operation operation)
{
    return isDue(Fault::InputOutput, name) ? error : operation();
}

/// Runs an operation that changes a file.
template <typename Operation>
int change(const char* name, int error, Operation operation)
{
    if (isDue(Fault::InputOutput, name)) {
        return error;
    }
    const int result = operation();
    return isDue(Fault::InputOutputBelated, name) ? error : result;
}

/// An open file: what SQLite sees of it, and behind it the file of the system.
struct File
{
    sqlite3_file base;
    sqlite3_file* real;
};

sqlite3_file* realFile(sqlite3_file* file)
{
    return reinterpret_cast<File*>(file)->real;
}

const sqlite3_io_methods* methods(sqlite3_file* file)
{
    return realFile(file)->pMethods;
}

int closeFile(sqlite3_file* file)
{
    return methods(file)->xClose(realFile(file));
}

int readFile(sqlite3_file* file, void* buffer, int amount, sqlite3_int64 offset)
{
    return look("read", SQLITE_IOERR_READ,
                [&] { return methods(file)->xRead(realFile(file), buffer, amount, offset); });
}

int writeFile(sqlite3_file* file, const void* buffer, int amount, sqlite3_int64 offset)
{
    const auto write = [&](int bytes) {
        return methods(file)->xWrite(realFile(file), buffer, bytes, offset);
    };
    if (isDue(Fault::DiskFull, "write")) {
        write(amount / 2);
        return SQLITE_FULL;
    }
    return change("write", SQLITE_IOERR_WRITE, [&] { return write(amount); });
}

int truncateFile(sqlite3_file* file, sqlite3_int64 size)
{
    return change("truncate", SQLITE_IOERR_TRUNCATE,
                  [&] { return methods(file)->xTruncate(realFile(file), size); });
}

int syncFile(sqlite3_file* file, int flags)
{
    return change("sync", SQLITE_IOERR_FSYNC,
                  [&] { return methods(file)->xSync(realFile(file), flags); });
}

int fileSize(sqlite3_file* file, sqlite3_int64* size)
{
    return look("measure", SQLITE_IOERR_FSTAT,
                [&] { return methods(file)->xFileSize(realFile(file), size); });
}

int lockFile(sqlite3_file* file, int level)
{
    return look("lock", SQLITE_IOERR_LOCK,
                [&] { return methods(file)->xLock(realFile(file), level); });
}

int unlockFile(sqlite3_file* file, int level)
{
    return look("unlock", SQLITE_IOERR_UNLOCK,
                [&] { return methods(file)->xUnlock(realFile(file), level); });
}

int checkReservedLock(sqlite3_file* file, int* isReserved)
{
    return look("check of the lock", SQLITE_IOERR_CHECKRESERVEDLOCK,
                [&] { return methods(file)->xCheckReservedLock(realFile(file), isReserved); });
}

int controlFile(sqlite3_file* file, int operation, void* argument)
{
    return methods(file)->xFileControl(realFile(file), operation, argument);
}

int sectorSize(sqlite3_file* file)
{
    return methods(file)->xSectorSize(realFile(file));
}

int deviceCharacteristics(sqlite3_file* file)
{
    return methods(file)->xDeviceCharacteristics(realFile(file));
}

/// Of the first version: without shared memory, everything that is read and written comes by here.
const sqlite3_io_methods fileMethods = {
    .iVersion = 1,
    .xClose = closeFile,
    .xRead = readFile,
    .xWrite = writeFile,
    .xTruncate = truncateFile,
    .xSync = syncFile,
    .xFileSize = fileSize,
    .xLock = lockFile,
    .xUnlock = unlockFile,
    .xCheckReservedLock = checkReservedLock,
    .xFileControl = controlFile,
    .xSectorSize = sectorSize,
    .xDeviceCharacteristics = deviceCharacteristics,
    .xShmMap = nullptr,
    .xShmLock = nullptr,
    .xShmBarrier = nullptr,
    .xShmUnmap = nullptr,
    .xFetch = nullptr,
    .xUnfetch = nullptr,
};

sqlite3_vfs* realSystem = nullptr;
sqlite3_vfs faultySystem;

int openFile(sqlite3_vfs* /*system*/, const char* name, sqlite3_file* memory, int flags,
             int* outFlags)
{
    auto* const file = new (memory) File{};
    file->real = reinterpret_cast<sqlite3_file*>(file + 1);
    return look("open", SQLITE_CANTOPEN, [&] {
        const int result = realSystem->xOpen(realSystem, name, file->real, flags, outFlags);
        if (file->real->pMethods) {
            file->base.pMethods = &fileMethods;
        }
        return result;
    });
}

int deleteFile(sqlite3_vfs* /*system*/, const char* name, int shallSyncDirectory)
{
    return change("delete", SQLITE_IOERR_DELETE,
                  [&] { return realSystem->xDelete(realSystem, name, shallSyncDirectory); });
}

int accessFile(sqlite3_vfs* /*system*/, const char* name, int flags, int* result)
{
    return look("access", SQLITE_IOERR_ACCESS,
                [&] { return realSystem->xAccess(realSystem, name, flags, result); });
}

sqlite3_mem_methods realMemory;

void* allocate(int size)
{
    return isDue(Fault::OutOfMemory, "allocation") ? nullptr : realMemory.xMalloc(size);
}

void* reallocate(void* memory, int size)
{
    return isDue(Fault::OutOfMemory, "reallocation") ? nullptr : realMemory.xRealloc(memory, size);
}

void require(int result)
{
    if (result != SQLITE_OK) {
        throw std::logic_error("SQLite is in use already");
    }
}

} // namespace

void install()
{
    require(sqlite3_config(SQLITE_CONFIG_GETMALLOC, &realMemory));
    auto memory = realMemory;
    memory.xMalloc = allocate;
    memory.xRealloc = reallocate;
    require(sqlite3_config(SQLITE_CONFIG_MALLOC, &memory));
    // Small allocations, too, are ours.
    require(sqlite3_config(SQLITE_CONFIG_LOOKASIDE, 0, 0));

    realSystem = sqlite3_vfs_find(nullptr);
    faultySystem = *realSystem;
    faultySystem.zName = "faulty";
    faultySystem.szOsFile += static_cast<int>(sizeof(File));
    faultySystem.xOpen = openFile;
    faultySystem.xDelete = deleteFile;
    faultySystem.xAccess = accessFile;
    require(sqlite3_vfs_register(&faultySystem, 1));
}

void arm(Fault fault, int operation)
{
    armedFault = fault;
    operationsLeft = operation;
    failed.clear();
}

std::string disarm()
{
    armedFault.reset();
    return failed;
}

} // namespace FaultInjection
