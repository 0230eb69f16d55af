#pragma once

#include "app/Person.h"
#include "app/Program.h"
#include "support/LogCapture.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include <functional>
#include <memory>
#include <optional>

class QQuickItem;

namespace kesto::test
{

/// The real program in a window without a screen.
class WindowFixture : public testing::Test
{
protected:
    /// A start of the program; the data stay from one to the next.
    void start(std::optional<Device> device, const QSize &size, const QString &language = QStringLiteral("ru"));
    /// Before the first start: there is nothing to import, and the diet, if any, began so many days ago.
    void prepare(std::optional<int> daysOfDiet);
    void TearDown() override;
    /// The first thing in another that is wanted, or null.
    static QQuickItem *item(QQuickItem &in, const std::function<bool(const QQuickItem &)> &wanted);
    [[nodiscard]] Person person() { return Person(program_->view()); }

    LogCapture log_;
    QTemporaryDir root_;
    std::unique_ptr<Program> program_;
};

} // namespace kesto::test
