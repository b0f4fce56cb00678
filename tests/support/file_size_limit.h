#pragma once

#include <csignal>

#include <sys/resource.h>

/* While it lives no file of this process can grow beyond so many bytes: writing fails as on a full disk. */
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &before);
        const rlimit limit = {bytes, before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    FileSizeLimit(const FileSizeLimit &) = delete;
    FileSizeLimit &operator=(const FileSizeLimit &) = delete;
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &before);
        std::signal(SIGXFSZ, handlerBefore);
    }

private:
    rlimit before = {};
    sighandler_t handlerBefore = std::signal(SIGXFSZ, SIG_IGN);
};
