#include "host/core/TrustedFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>

namespace cutline {

namespace {

int openFlags(FileKind kind) {
  return O_RDONLY | O_CLOEXEC | O_NONBLOCK | (kind == FileKind::directory ? O_DIRECTORY : 0);
}

// Empty when the file may be trusted.
std::string reasonAgainst(const struct stat& file, FileKind kind) {
  if (kind == FileKind::directory && !S_ISDIR(file.st_mode)) return "is no directory";
  if (kind == FileKind::regular && !S_ISREG(file.st_mode)) return "is no ordinary file";
  if (file.st_uid != 0 && file.st_uid != geteuid())
    return "belongs to another user; it must belong to root or to you";
  if ((file.st_mode & (S_IWGRP | S_IWOTH)) != 0)
    return "can be changed by other users; take their write permission away (chmod go-w)";
  return {};
}

Result<FileDescriptor> checked(FileDescriptor file, FileKind kind, const std::string& path) {
  if (file.get() < 0) {
    const bool isLink = errno == ELOOP;
    return Error{path + ": " + (isLink ? "is a symbolic link" : std::strerror(errno))};
  }
  struct stat status {};
  if (fstat(file.get(), &status) != 0) return Error{path + ": " + std::strerror(errno)};
  const std::string reason = reasonAgainst(status, kind);
  if (!reason.empty()) return Error{path + " " + reason};
  return file;
}

// What nobody has to be able to read, in order to go through.
constexpr int kWayFlags = O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;

Result<FileDescriptor> checkedWay(FileDescriptor folder, const std::filesystem::path& path) {
  struct stat status {};
  if (folder.get() < 0 || fstat(folder.get(), &status) != 0)
    return Error{path.string() + ": " + std::strerror(errno)};
  if (status.st_uid != 0 && status.st_uid != geteuid())
    return Error{path.string() + " belongs to another user; it must belong to root or to you"};
  if ((status.st_mode & S_IWOTH) != 0 && (status.st_mode & S_ISVTX) == 0)
    return Error{path.string() + " can be changed by everybody; take that away (chmod o-w)"};
  return folder;
}

Result<FileDescriptor> walkTo(const std::filesystem::path& path) {
  std::filesystem::path walked = "/";
  auto folder = checkedWay(FileDescriptor(::open(walked.c_str(), kWayFlags)), walked);
  for (const std::filesystem::path& name : path.relative_path()) {
    if (!folder) return folder;
    walked /= name;
    folder = checkedWay(FileDescriptor(::openat(folder->get(), name.c_str(), kWayFlags)), walked);
  }
  return folder;
}

}  // namespace

Result<FileDescriptor> openTrustedFolder(const std::string& path) {
  const std::filesystem::path folder = path;
  if (!folder.is_absolute() || folder != folder.lexically_normal() || !folder.has_filename())
    return Error{path + ": is no whole path of a folder"};
  const std::filesystem::path above = folder.parent_path();
  const Result<FileDescriptor> way = walkTo(above);
  if (!way) return way.error();
  const std::string shown = above == above.root_path() ? "" : above.string();
  return openTrustedIn(*way, folder.filename().string(), FileKind::directory, shown);
}

Result<FileDescriptor> openTrustedIn(const FileDescriptor& directory, const std::string& name,
                                     FileKind kind, const std::string& shownPath) {
  const int file = ::openat(directory.get(), name.c_str(), openFlags(kind) | O_NOFOLLOW);
  return checked(FileDescriptor(file), kind, shownPath + "/" + name);
}

}  // namespace cutline
