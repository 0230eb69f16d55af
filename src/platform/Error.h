#pragma once

#include <QString>

#include <tl/expected.hpp>

namespace kesto
{

/// Why an operation failed. All texts are English and meant for the log; `reason` may be shown to the user as well.
struct Error
{
    QString what;   ///< what was being done: "cannot write the settings"
    QString where;  ///< the file, address or statement concerned; empty when there is none
    QString reason; ///< what the system or the library answered: "No space left on device"
    int code = 0;   ///< its number (errno, SQLite's extended result code), or 0

    /// One line: "what: where: reason", leaving out what is empty.
    [[nodiscard]] QString message() const
    {
        QString line = what;
        for (const QString &part : {where, reason}) {
            if (!part.isEmpty())
                line += QStringLiteral(": ") + part;
        }
        return line;
    }

    bool operator==(const Error &) const = default;
};

/// The one way to fail: a value, or why there is none.
template <class T>
using Result = tl::expected<T, Error>;

[[nodiscard]] inline tl::unexpected<Error> failure(QString what, QString where, QString reason, int code = 0)
{
    return tl::unexpected(Error{std::move(what), std::move(where), std::move(reason), code});
}

} // namespace kesto
