#pragma once

#include <QString>

#include <bit>
#include <optional>

namespace kesto::bench
{

/// Order matters; absent values count as themselves.
class Checksum
{
public:
    Checksum &add(qint64 number)
    {
        value_ ^= static_cast<quint64>(number);
        value_ *= 0x9e3779b97f4a7c15U;
        value_ ^= value_ >> 29;
        return *this;
    }
    Checksum &add(double number) { return add(std::bit_cast<qint64>(number)); }
    Checksum &add(const QString &text)
    {
        add(static_cast<qint64>(text.isNull() ? -1 : text.size()));
        for (const QChar unit : text)
            add(static_cast<qint64>(unit.unicode()));
        return *this;
    }
    template <class T>
    Checksum &add(const std::optional<T> &value)
    {
        if (!value)
            return add(qint64(0x5e11));
        if constexpr (std::is_floating_point_v<T>)
            return add(static_cast<double>(*value));
        else
            return add(static_cast<qint64>(*value));
    }

    [[nodiscard]] quint64 value() const { return value_; }

private:
    quint64 value_ = 0xcbf29ce484222325U;
};

} // namespace kesto::bench
