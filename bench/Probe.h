#pragma once

namespace kesto::bench
{

/// While this exists, every SQLite connection that is opened in the process has its statements and its syncs counted.
/// Timed rounds run without it.
class Probe
{
public:
    Probe();
    ~Probe();
    Probe(const Probe &) = delete;
    Probe &operator=(const Probe &) = delete;

    void reset();
    /// Statements that began to run.
    [[nodiscard]] int statements() const;
    /// Calls of fsync or fdatasync on a database or its log.
    [[nodiscard]] int syncs() const;
};

} // namespace kesto::bench
