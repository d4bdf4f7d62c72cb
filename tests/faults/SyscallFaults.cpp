#include "faults/SyscallFaults.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/syscall.h>

namespace quillon::testing {
namespace {

struct KnownCall {
    long number;
    const char* name;
    std::vector<int> errors;
};

#define CALL(name) SYS_##name, #name
const std::vector<KnownCall>& knownCalls() {
    static const std::vector<int> creating{ENOSPC, EIO, EACCES};
    static const std::vector<int> writing{ENOSPC, EIO};
    static const std::vector<int> looking{EIO, EACCES};
    static const std::vector<int> reading{EIO};
    static const std::vector<KnownCall> calls{
#ifdef SYS_open
        {CALL(open), creating},
        {CALL(mkdir), creating},
        {CALL(rename), creating},
        {CALL(link), creating},
        {CALL(symlink), creating},
        {CALL(unlink), looking},
        {CALL(rmdir), looking},
        {CALL(readlink), looking},
        {CALL(stat), looking},
        {CALL(lstat), looking},
        {CALL(access), looking},
        {CALL(chmod), looking},
#endif
        {CALL(openat), creating},
        {CALL(mkdirat), creating},
        {CALL(renameat), creating},
        {CALL(renameat2), {ENOSPC, EIO, EACCES, EXDEV, EINVAL}},
        {CALL(linkat), {ENOSPC, EIO, EACCES, EPERM}},
        {CALL(symlinkat), creating},
        {CALL(unlinkat), looking},
        {CALL(readlinkat), looking},
        {CALL(newfstatat), looking},
        {CALL(statx), looking},
        {CALL(fstat), reading},
        {CALL(faccessat), looking},
        {CALL(faccessat2), looking},
        {CALL(getdents64), reading},
        {CALL(chdir), looking},
        {CALL(read), reading},
        {CALL(pread64), reading},
        {CALL(write), writing},
        {CALL(pwrite64), writing},
        {CALL(writev), writing},
        {CALL(sendfile), writing},
        {CALL(copy_file_range), {ENOSPC, EIO, EXDEV, EOPNOTSUPP}},
        {CALL(ioctl), {ENOSPC, EIO, EOPNOTSUPP}},
        {CALL(fallocate), writing},
        {CALL(ftruncate), writing},
        {CALL(fsync), writing},
        {CALL(fdatasync), writing},
        {CALL(syncfs), writing},
        {CALL(close), reading},
        {CALL(fchmod), looking},
        {CALL(fchmodat), looking},
        {CALL(fchown), {EPERM, EIO}},
        {CALL(fchownat), {EPERM, EIO}},
        {CALL(utimensat), looking},
        {CALL(flistxattr), reading},
        {CALL(llistxattr), looking},
        {CALL(listxattr), looking},
        {CALL(fgetxattr), looking},
        {CALL(lgetxattr), looking},
        {CALL(getxattr), looking},
        {CALL(fsetxattr), {ENOSPC, EIO, EACCES, EOPNOTSUPP}},
        {CALL(lsetxattr), {ENOSPC, EIO, EACCES, EOPNOTSUPP}},
        {CALL(setxattr), {ENOSPC, EIO, EACCES, EOPNOTSUPP}},
        {CALL(fremovexattr), creating},
        {CALL(pipe2), {EMFILE}},
        {CALL(clone), {EAGAIN}},
        {CALL(clone3), {EAGAIN}},
        {CALL(execve), {EACCES}},
    };
    return calls;
}
#undef CALL

const KnownCall* knownCall(long number) {
    const auto& calls = knownCalls();
    const auto found = std::ranges::find(calls, number, &KnownCall::number);
    return found == calls.end() ? nullptr : &*found;
}

bool isOneOf(long number, std::initializer_list<long> numbers) {
    return std::ranges::find(numbers, number) != numbers.end();
}

/// Which argument says how much to transfer.
std::optional<std::size_t> lengthArgument(long number) {
    if (isOneOf(number, {SYS_write, SYS_pwrite64, SYS_read, SYS_pread64}))
        return 2;
    if (number == SYS_sendfile)
        return 3;
    if (number == SYS_copy_file_range)
        return 4;
    return std::nullopt;
}

/// The folder that holds the name which two arguments of the call give.
std::string folderOf(const SyscallStop& stop, std::size_t folderPosition) {
    const std::string name = textArgument(stop, folderPosition + 1);
    if (const std::size_t slash = name.rfind('/'); slash != std::string::npos)
        return name.substr(0, slash);
    const int folder = static_cast<int>(stop.arguments[folderPosition]);
    const std::string link =
        "/proc/" + std::to_string(stop.process) +
        (folder == AT_FDCWD ? std::string("/cwd") : "/fd/" + std::to_string(folder));
    std::error_code error;
    return std::filesystem::read_symlink(link, error);
}

bool crossesFolders(const SyscallStop& stop) {
    if (!isOneOf(stop.number, {SYS_renameat, SYS_renameat2, SYS_linkat}))
        return false;
    const std::string from = folderOf(stop, 0);
    return !from.starts_with("/proc/") && from != folderOf(stop, 2);
}

constexpr std::uint64_t longestTransfer = 8 * 1024;

} // namespace

std::string syscallName(long number) {
    const KnownCall* call = knownCall(number);
    return call != nullptr ? call->name : "system call " + std::to_string(number);
}

std::vector<int> possibleErrors(const SyscallStop& stop) {
    const KnownCall* call = knownCall(stop.number);
    if (call == nullptr)
        return {};
    std::vector<int> errors = call->errors;
    constexpr std::uint64_t making = O_CREAT | (O_TMPFILE & ~O_DIRECTORY);
    if (stop.number == SYS_openat && (stop.arguments[2] & making) == 0)
        std::erase(errors, ENOSPC);
    return errors;
}

bool goesByName(long number) {
#ifdef SYS_open
    if (isOneOf(number, {SYS_open, SYS_mkdir, SYS_rename, SYS_link, SYS_symlink, SYS_unlink,
                         SYS_rmdir, SYS_stat, SYS_lstat, SYS_access}))
        return true;
#endif
    return isOneOf(number,
                   {SYS_openat, SYS_mkdirat, SYS_renameat, SYS_renameat2, SYS_linkat, SYS_symlinkat,
                    SYS_unlinkat, SYS_newfstatat, SYS_statx, SYS_faccessat, SYS_faccessat2});
}

bool isSync(long number) {
    return isOneOf(number, {SYS_fsync, SYS_fdatasync, SYS_syncfs});
}

bool isRemoval(long number) {
#ifdef SYS_unlink
    if (isOneOf(number, {SYS_unlink, SYS_rmdir}))
        return true;
#endif
    return number == SYS_unlinkat;
}

SyscallDecision ordinarily(Machine machine, const SyscallStop& stop) {
    const bool exclusive = stop.number == SYS_renameat2 && stop.arguments[4] != 0;
    if (isSync(stop.number))
        return SyscallDecision::answer(0);
    if (machine == Machine::noExclusiveRename && exclusive)
        return SyscallDecision::fail(EINVAL);
    if (machine == Machine::alwaysOtherDevice && crossesFolders(stop))
        return SyscallDecision::fail(EXDEV);
    if (machine == Machine::noKernelCopy && stop.number == SYS_copy_file_range)
        return SyscallDecision::fail(EOPNOTSUPP);
    SyscallDecision decision;
    if (const auto position = lengthArgument(stop.number);
        position && stop.arguments[*position] > longestTransfer)
        decision.argument = {*position, longestTransfer};
    return decision;
}

} // namespace quillon::testing
