#pragma once

#include "platform/objectgraph/ManagedObjectContext.h"
#include "support/TestPlatform.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <QVariantMap>

#include <memory>

namespace kesto
{
class Dish;
class Ingredient;
} // namespace kesto

namespace kesto::test
{

/// A program with resources of its own, whose catalogue a case writes.
class ImportFixture : public testing::Test
{
protected:
    ImportFixture();
    ~ImportFixture() override;

    [[nodiscard]] ManagedObjectContext &context();
    /// Ends the program and starts it again: what is read then comes from the store.
    void restart();

    void writeResource(const char *name, const QByteArray &bytes);
    /// Writes "recipes.plist" and imports it.
    void import(const QVariantList &recipes);
    /// Imports what "recipes.plist" holds; the log lines of it.
    QStringList parse();

    /// A record of the catalogue with all its keys; the lists of lines are "a, b, c".
    [[nodiscard]] static QVariantMap record(const char *dishID, const char *linesRU, const char *linesENG = "");
    /// The dish of an identifier; there is exactly one.
    [[nodiscard]] Dish &dish(const char *dishID);
    /// "0 name, 1 name" in the order of the lines' positions, "-" for an absent one.
    [[nodiscard]] static std::string outline(std::vector<Ingredient *> lines);
    /// All dishes, categories, lines and purchases as texts, in the order of insertion.
    [[nodiscard]] QStringList content();

    TestPlatform &platform() { return *platform_; }
    /// Every write to the store fails until it is set back.
    void makeReadOnly(bool readOnly);
    /// Every read of an entity fails until it is set back with null.
    void makeUnreadable(const char *entity);

private:
    QTemporaryDir resources_;
    std::unique_ptr<TestPlatform> platform_;
};

} // namespace kesto::test
