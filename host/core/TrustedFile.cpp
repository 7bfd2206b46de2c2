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

}  // namespace

Result<FileDescriptor> openTrusted(const std::string& path, FileKind kind) {
  return checked(FileDescriptor(::open(path.c_str(), openFlags(kind))), kind, path);
}

Result<FileDescriptor> belowTrustedFolders(FileDescriptor file, const std::string& path) {
  for (std::filesystem::path above = path; above.has_relative_path();) {
    above = above.parent_path();
    struct stat status {};
    if (::stat(above.c_str(), &status) != 0)
      return Error{above.string() + ": " + std::strerror(errno)};
    if (status.st_uid != 0 && status.st_uid != geteuid())
      return Error{above.string() + " belongs to another user; it must belong to root or to you"};
    if ((status.st_mode & S_IWOTH) != 0 && (status.st_mode & S_ISVTX) == 0)
      return Error{above.string() + " can be changed by everybody; take that away (chmod o-w)"};
  }
  return file;
}

Result<FileDescriptor> openTrustedIn(const FileDescriptor& directory, const std::string& name,
                                     FileKind kind, const std::string& shownPath) {
  const int file = ::openat(directory.get(), name.c_str(), openFlags(kind) | O_NOFOLLOW);
  return checked(FileDescriptor(file), kind, shownPath + "/" + name);
}

}  // namespace cutline
