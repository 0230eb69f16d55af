#pragma once

#include <csignal>

#include <sys/resource.h>

namespace kesto::test
{

/// Lowers a limit of the process while it lives: RLIMIT_NOFILE 0 lets every open() fail with EMFILE, RLIMIT_FSIZE lets
/// writes beyond a size fail as on a full disk.
class ResourceLimit
{
public:
    ResourceLimit(__rlimit_resource resource, rlim_t limit)
        : resource_(resource)
        , signalBefore_(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(resource_, &before_);
        const struct rlimit lower = {limit, before_.rlim_max};
        setrlimit(resource_, &lower);
    }
    ~ResourceLimit()
    {
        setrlimit(resource_, &before_);
        std::signal(SIGXFSZ, signalBefore_);
    }
    ResourceLimit(const ResourceLimit &) = delete;
    ResourceLimit &operator=(const ResourceLimit &) = delete;

private:
    __rlimit_resource resource_;
    void (*signalBefore_)(int);
    struct rlimit before_ = {};
};

} // namespace kesto::test
