#pragma once

#include "objectgraph/FaultyVfs.h"
#include "platform/objectgraph/ManagedObjectContext.h"
#include "platform/objectgraph/PersistentStoreCoordinator.h"
#include "platform/objectgraph/SqlStore.h"
#include "support/Printing.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <initializer_list>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace kesto::test
{

/// People with pets, passports and bosses: one entity with an attribute of every type, two to-many relationships to the
/// same entity, a pair of to-one relationships and an entity linked to itself.
[[nodiscard]] const ManagedObjectModel &peopleModel();

using Values = std::initializer_list<std::pair<const char *, QVariant>>;

[[nodiscard]] QVariant get(const ManagedObject &object, const char *key);
void set(ManagedObject &object, const char *key, const QVariant &value);
void set(ManagedObject &object, const char *key, ManagedObject *value);
[[nodiscard]] ManagedObject *one(const ManagedObject &object, const char *key);
/// The names of the members of a to-many relationship, sorted.
[[nodiscard]] std::vector<std::string> members(const ManagedObject &object, const char *key);
[[nodiscard]] std::string name(const ManagedObject *object);
[[nodiscard]] std::vector<std::string> names(const std::vector<ManagedObject *> &objects);
[[nodiscard]] QByteArray bytesOf(const QString &path);
void writeBytes(const QString &path, const QByteArray &bytes);

/// A coordinator with one context, over a file.
struct OpenGraph
{
    explicit OpenGraph(const QString &path, const ManagedObjectModel &model = peopleModel());

    ManagedObject &insert(const char *entity, Values values);
    [[nodiscard]] const EntityDescription &entity(const char *name) const { return *model.entity(name); }
    [[nodiscard]] std::vector<ManagedObject *> fetch(const char *entity, const FetchRequest &request = {});
    /// The only object of a name; null when there is none.
    [[nodiscard]] ManagedObject *find(const char *entity, const char *name);
    [[nodiscard]] bool save() { return succeeded(context.save()); }
    /// Keeps the reason of a failure in `error`.
    bool succeeded(Result<void> result);

    const ManagedObjectModel &model;
    Error error;
    PersistentStoreCoordinator coordinator;
    bool attached;
    ManagedObjectContext context;
};

/// Gives every test a folder and a graph that can be closed and opened again.
class GraphTest : public testing::Test
{
protected:
    GraphTest();
    [[nodiscard]] QString path(const char *file = "store.sqlite") const
    {
        return folder_.filePath(QString::fromUtf8(file));
    }
    [[nodiscard]] QStringList files() const;
    /// Opens the file anew; what is not saved is lost.
    void reopen();
    void save();
    /// Opens the file anew on a disk that can be made to fail, for the rest of the test.
    FaultyVfs &breakableDisk();
    void saveAndReopen();

    [[nodiscard]] OpenGraph &graph() { return *graph_; }
    ManagedObject &insert(const char *entity, Values values = {}) { return graph_->insert(entity, values); }
    /// The object of a name; made when there is none.
    [[nodiscard]] ManagedObject &named(const char *entity, const char *name);
    [[nodiscard]] ManagedObject &person(const char *name) { return named("Person", name); }
    [[nodiscard]] ManagedObject &pet(const char *name) { return named("Pet", name); }

    QTemporaryDir folder_;
    std::unique_ptr<FaultyVfs> disk_;
    std::unique_ptr<OpenGraph> graph_;
};

} // namespace kesto::test
