#include "BaselineDatabase.h"
#include "Checksum.h"
#include "DayRow.h"
#include "Fixtures.h"
#include "Workloads.h"

#include "platform/objectgraph/ManagedObjectContext.h"

#include <QHash>

#include <algorithm>
#include <random>

namespace kesto::bench
{

namespace
{

constexpr int kLookUps = 1000;
constexpr int kIdentityLookUps = 200'000;
constexpr int kSaves = 15;

/// Different days, all over the ten years.
std::vector<QDateTime> wantedDays(const Fixtures &fixtures)
{
    std::vector<QDateTime> days = fixtures.days();
    std::shuffle(days.begin(), days.end(), std::mt19937(7)); // NOLINT: the same days in every run
    days.resize(kLookUps);
    return days;
}

class OurLookUp final : public Trial
{
public:
    explicit OurLookUp(Fixtures &fixtures)
        : wanted_(wantedDays(fixtures))
        , file_(fixtures, fixtures.diaryFile())
        , store_(file_.path())
    {
        run();
        store_.renewContext();
    }
    void run() override
    {
        Checksum checksum;
        for (const QDateTime &date : wanted_) {
            const DietDay *day = DietDay::dayWithoutCreation(date, store_.context());
            checksum.add(day->objectID()).add(day->weight());
        }
        checksum_ = checksum.value();
    }
    quint64 checksum() override { return checksum_; }

private:
    std::vector<QDateTime> wanted_;
    FileCopy file_;
    OpenStore store_;
    quint64 checksum_ = 0;
};

template <class Database>
class BaselineLookUp final : public Trial
{
public:
    explicit BaselineLookUp(Fixtures &fixtures)
        : wanted_(wantedDays(fixtures))
        , file_(fixtures, fixtures.diaryFile())
        , database_(file_.path())
        , rows_(database_, (std::string("SELECT ") + kDayColumns + " FROM DietDay WHERE date = ?").c_str())
    {
        run();
        days_.clear();
        byKey_.clear();
        byKey_.squeeze();
    }
    void run() override
    {
        Checksum checksum;
        for (const QDateTime &date : wanted_) {
            rows_.bind(1, static_cast<qint64>(date.toMSecsSinceEpoch()));
            if (!rows_.next())
                fail(QStringLiteral("a day is missing"));
            days_.push_back(readDay(rows_));
            byKey_.insert(days_.back()->key, days_.back().get());
            rows_.reset();
            checksum.add(days_.back()->key).add(days_.back()->weight);
        }
        checksum_ = checksum.value();
    }
    quint64 checksum() override { return checksum_; }

private:
    std::vector<QDateTime> wanted_;
    FileCopy file_;
    Database database_;
    typename Database::Statement rows_;
    std::vector<std::unique_ptr<DayRow>> days_;
    QHash<qint64, DayRow *> byKey_; // a row is one object here, too
    quint64 checksum_ = 0;
};

class OurIdentity final : public Trial
{
public:
    explicit OurIdentity(Fixtures &fixtures)
        : file_(fixtures, fixtures.diaryFile())
        , store_(file_.path())
        , days_(store_.context().fetchOrLog<DietDay>())
    {
        std::mt19937 random(11); // NOLINT: the same keys in every run
        for (int i = 0; i < kIdentityLookUps; ++i)
            wanted_.push_back(days_[random() % days_.size()]->objectID());
    }
    void run() override
    {
        ManagedObjectContext &context = store_.context();
        const EntityDescription &entity = context.entityOf<DietDay>();
        found_ = 0;
        for (const qint64 id : wanted_)
            found_ += context.registeredObject(entity, id) != nullptr ? 1 : 0;
    }
    quint64 checksum() override { return found_; }

private:
    FileCopy file_;
    OpenStore store_;
    std::vector<DietDay *> days_;
    std::vector<qint64> wanted_;
    quint64 found_ = 0;
};

class OurSave final : public Trial
{
public:
    explicit OurSave(Fixtures &fixtures)
        : days_(wantedDays(fixtures))
        , file_(fixtures, fixtures.diaryFile())
        , store_(file_.path())
    {
        for (const QDateTime &date : days_)
            objects_.push_back(DietDay::dayWithoutCreation(date, store_.context()));
        run();
    }
    void run() override
    {
        DietDay *day = objects_[next_++];
        day->setWeight(50.0F + static_cast<float>(next_));
        if (!store_.context().save())
            fail(QStringLiteral("a day could not be saved"));
    }
    quint64 checksum() override
    {
        store_.close();
        return contentChecksum(file_.path(), {"DietDay"});
    }

private:
    std::vector<QDateTime> days_;
    FileCopy file_;
    OpenStore store_;
    std::vector<DietDay *> objects_;
    size_t next_ = 0;
};

template <class Database>
class BaselineSave final : public Trial
{
public:
    explicit BaselineSave(Fixtures &fixtures)
        : days_(wantedDays(fixtures))
        , file_(fixtures, fixtures.diaryFile())
        , database_(std::in_place, file_.path())
        , update_(std::in_place, *database_, "UPDATE DietDay SET weight = ? WHERE _pk = ?")
    {
        typename Database::Statement row(*database_, "SELECT _pk FROM DietDay WHERE date = ?");
        for (const QDateTime &date : days_) {
            row.bind(1, static_cast<qint64>(date.toMSecsSinceEpoch()));
            row.next();
            keys_.push_back(row.integer(0));
            row.reset();
        }
        run();
    }
    void run() override
    {
        const qint64 key = keys_[next_++];
        database_->execute("BEGIN IMMEDIATE");
        update_->bind(1, 50.0 + static_cast<double>(next_));
        update_->bind(2, key);
        update_->execute();
        database_->execute("COMMIT");
    }
    quint64 checksum() override
    {
        update_.reset();
        database_.reset();
        return contentChecksum(file_.path(), {"DietDay"});
    }

private:
    std::vector<QDateTime> days_;
    FileCopy file_;
    std::optional<Database> database_;
    std::optional<typename Database::Statement> update_;
    std::vector<qint64> keys_;
    size_t next_ = 0;
};

} // namespace

Workload lookUpOfDays(Fixtures &fixtures)
{
    return {.name = "look-up of a day by date, not yet in memory; baselines: heap object and hash map",
            .contenders = {contender<OurLookUp>("ours", fixtures),
                           contender<BaselineLookUp<PlainDatabase>>("plain C API", fixtures),
                           contender<BaselineLookUp<QtDatabase>>("QSqlQuery", fixtures)},
            .bars = {{Bar::Kind::TimesContender, 1.3, "plain C API"}},
            .items = kLookUps};
}

Workload lookUpByIdentity(Fixtures &fixtures)
{
    return {.name = "look-up of a day in memory by identity",
            .contenders = {contender<OurIdentity>("ours", fixtures)},
            .bars = {{Bar::Kind::NanosecondsEach, 50}, {Bar::Kind::StatementsAtMost, 0}},
            .items = kIdentityLookUps};
}

Workload saveOfOneDay(Fixtures &fixtures)
{
    return {.name = "save of one changed day",
            .contenders = {contender<OurSave>("ours", fixtures),
                           contender<BaselineSave<PlainDatabase>>("plain C API", fixtures),
                           contender<BaselineSave<QtDatabase>>("QSqlQuery", fixtures)},
            .bars = {{Bar::Kind::TimesContender, 1.05, "plain C API"}, {Bar::Kind::SyncsExactly, 1}},
            .repeats = kSaves};
}

} // namespace kesto::bench
