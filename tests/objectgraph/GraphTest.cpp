#include "objectgraph/GraphTest.h"

#include <QDir>
#include <QFile>

#include <algorithm>

namespace kesto::test
{

const ManagedObjectModel &peopleModel()
{
    static const ManagedObjectModel model(
        "People", 2,
        {EntityDescription(
             "Person",
             {{"name", AttributeType::String, true},
              {"age", AttributeType::Integer},
              {"height", AttributeType::Float},
              {"active", AttributeType::Boolean},
              {"born", AttributeType::Date, true},
              {"photo", AttributeType::Data},
              {"rank", AttributeType::UnsignedInteger}},
             {{.name = "pets",
               .destination = "Pet",
               .inverse = "owner",
               .toMany = true,
               .deleteRule = DeleteRule::Cascade},
              {.name = "guests", .destination = "Pet", .inverse = "sitter", .toMany = true},
              {.name = "passport", .destination = "Passport", .inverse = "holder", .deleteRule = DeleteRule::Cascade},
              {.name = "boss", .destination = "Person", .inverse = "staff"},
              {.name = "staff", .destination = "Person", .inverse = "boss", .toMany = true}}),
         EntityDescription("Pet", {{"name", AttributeType::String}, {"weight", AttributeType::Float}},
                           {{.name = "owner", .destination = "Person", .inverse = "pets"},
                            {.name = "sitter", .destination = "Person", .inverse = "guests"}}),
         EntityDescription("Passport", {{"name", AttributeType::String}},
                           {{.name = "holder", .destination = "Person", .inverse = "passport"}})});
    return model;
}

QVariant get(const ManagedObject &object, const char *key) { return object.valueForKey(QString::fromUtf8(key)); }

void set(ManagedObject &object, const char *key, const QVariant &value)
{
    EXPECT_TRUE(object.setValueForKey(value, QString::fromUtf8(key))) << key;
}

void set(ManagedObject &object, const char *key, ManagedObject *value)
{
    set(object, key, value != nullptr ? QVariant::fromValue(value) : QVariant());
}

ManagedObject *one(const ManagedObject &object, const char *key) { return get(object, key).value<ManagedObject *>(); }

std::vector<std::string> members(const ManagedObject &object, const char *key)
{
    const auto list = get(object, key).value<QList<ManagedObject *>>();
    auto sorted = names({list.begin(), list.end()});
    std::sort(sorted.begin(), sorted.end());
    return sorted;
}

std::string name(const ManagedObject *object)
{
    return object != nullptr ? get(*object, "name").toString().toStdString() : "nobody";
}

std::vector<std::string> names(const std::vector<ManagedObject *> &objects)
{
    std::vector<std::string> result;
    result.reserve(objects.size());
    for (const ManagedObject *object : objects)
        result.push_back(name(object));
    return result;
}

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeBytes(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
}

OpenGraph::OpenGraph(const QString &path, const ManagedObjectModel &usedModel)
    : model(usedModel)
    , coordinator(model)
    , attached(path.isNull() || succeeded(coordinator.addPersistentStore(path, {})))
    , context(coordinator)
{
}

bool OpenGraph::succeeded(Result<void> result)
{
    if (!result)
        error = std::move(result.error());
    return result.has_value();
}

ManagedObject &OpenGraph::insert(const char *entity, Values values)
{
    ManagedObject &object = context.insert(this->entity(entity));
    for (const auto &[key, value] : values)
        set(object, key, value);
    return object;
}

std::vector<ManagedObject *> OpenGraph::fetch(const char *entity, const FetchRequest &request)
{
    auto found = context.fetch(this->entity(entity), request);
    EXPECT_TRUE(found) << found.error().message().toStdString();
    return found.value_or(std::vector<ManagedObject *>());
}

ManagedObject *OpenGraph::find(const char *entity, const char *name)
{
    const auto found = fetch(entity, {.predicate = attribute("name") == QString::fromUtf8(name)});
    EXPECT_LE(found.size(), 1U) << name;
    return found.empty() ? nullptr : found.front();
}

GraphTest::GraphTest() { reopen(); }

QStringList GraphTest::files() const { return QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name); }

void GraphTest::reopen()
{
    graph_.reset();
    graph_ = std::make_unique<OpenGraph>(path());
    ASSERT_TRUE(graph_->attached) << graph_->error.message().toStdString();
}

void GraphTest::save() { ASSERT_TRUE(graph_->save()) << graph_->error.message().toStdString(); }

FaultyVfs &GraphTest::breakableDisk()
{
    graph_.reset();
    disk_ = std::make_unique<FaultyVfs>();
    reopen();
    return *disk_;
}

void GraphTest::saveAndReopen()
{
    save();
    reopen();
}

ManagedObject &GraphTest::named(const char *entity, const char *name)
{
    ManagedObject *found = graph_->find(entity, name);
    return found != nullptr ? *found : insert(entity, {{"name", QString::fromUtf8(name)}});
}

} // namespace kesto::test
