#pragma once

#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

// For libraries that are put between a program and the C library (LD_PRELOAD). They look at the
// files below one folder, which TORTURE_FOLDER names, and leave all others alone.
namespace tarvelo::torture {

// The function of that name that would have been called without us.
template <typename Function>
Function *real(const char *name)
{
    return reinterpret_cast<Function *>(::dlsym(RTLD_NEXT, name));
}

inline const char *setting(const char *name)
{
    const char *value = std::getenv(name);
    return value ? value : "";
}

inline bool isOurs(const char *path)
{
    static const std::string folder = setting("TORTURE_FOLDER");
    return !folder.empty() && path && std::strncmp(path, folder.c_str(), folder.size()) == 0;
}

// Relative to `folder`, a descriptor of one or AT_FDCWD.
inline std::string whole(int folder, const char *path)
{
    if (!path || path[0] == '/' || folder < 0)
        return path ? path : "";
    char name[4096];
    const std::string link = "/proc/self/fd/" + std::to_string(folder);
    const ssize_t length = ::readlink(link.c_str(), name, sizeof name);
    return length > 0 ? std::string(name, static_cast<std::size_t>(length)) + "/" + path : path;
}

// Regular files and folders only: numbers of descriptors are soon given to sockets again.
inline std::string pathOf(int descriptor)
{
    struct stat status = {};
    if (::fstat(descriptor, &status) != 0 || !(S_ISREG(status.st_mode) || S_ISDIR(status.st_mode)))
        return {};
    char name[4096];
    const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
    const ssize_t length = ::readlink(link.c_str(), name, sizeof name);
    return length > 0 ? std::string(name, static_cast<std::size_t>(length)) : std::string();
}

} // namespace tarvelo::torture
