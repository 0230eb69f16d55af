#include "BaselineDatabase.h"
#include "Checksum.h"
#include "DayRow.h"
#include "Fixtures.h"
#include "Workloads.h"

#include "model/JornalDay.h"
#include "model/TimeRow.h"
#include "platform/objectgraph/ManagedObjectContext.h"

#include <QHash>

#include <algorithm>

namespace kesto::bench
{

namespace
{

constexpr size_t kFirstDay = 1800;
constexpr size_t kOtherFirstDay = 300; ///< read once beforehand, so that the statements are there

template <int Days>
class OurJournals final : public Trial
{
public:
    explicit OurJournals(Fixtures &fixtures)
        : days_(fixtures.days())
        , file_(fixtures, fixtures.diaryFile())
        , store_(file_.path())
    {
        read(kOtherFirstDay);
        store_.renewContext();
    }
    void run() override { read(kFirstDay); }
    quint64 checksum() override { return checksum_; }

private:
    void read(size_t first)
    {
        FetchRequest request;
        request.predicate =
            attribute("date") >= days_[first] && attribute("date") < days_[first + static_cast<size_t>(Days)];
        request.sortDescriptors = {{"date", true}};
        request.relationshipKeyPathsForPrefetching = {"jornalDay.timeRows"};
        Checksum checksum;
        for (const DietDay *day : store_.context().fetchOrLog<DietDay>(request)) {
            checksum.add(day->objectID()).add(day->weight()).add(day->chB());
            const JornalDay *journal = day->jornalDay();
            checksum.add(journal->objectID()).add(journal->sportDay()).add(journal->meatSportActivity());
            for (const TimeRow *row : journal->timeRows()) {
                const std::optional<QDateTime> reminder = row->reminderDate();
                checksum.add(row->objectID()).add(row->time()).add(row->compleate()).add(row->remind());
                checksum.add(reminder ? std::optional(reminder->toMSecsSinceEpoch()) : std::nullopt);
                checksum.add(row->otherTimeObject());
            }
        }
        checksum_ = checksum.value();
    }

    const std::vector<QDateTime> &days_;
    FileCopy file_;
    OpenStore store_;
    quint64 checksum_ = 0;
};

struct TimeRowRow
{
    qint64 key;
    std::optional<float> time;
    std::optional<bool> compleate, remind, userCreated;
    std::optional<qint64> reminderDate;
    QString otherTimeObject;
    qint64 joranlDay;
};

struct JournalRow
{
    qint64 key;
    std::optional<bool> hotDay, sportDay;
    std::optional<qint64> meatSportActivity;
    qint64 day;
    std::vector<std::unique_ptr<TimeRowRow>> timeRows;
};

/// Three statements, one a table, put together in memory.
template <class Database>
class BaselineJournals final : public Trial
{
public:
    explicit BaselineJournals(Fixtures &fixtures)
        : days_(fixtures.days())
        , file_(fixtures, fixtures.diaryFile())
        , database_(file_.path())
        , dayRows_(database_, (std::string("SELECT ") + kDayColumns +
                               " FROM DietDay WHERE date >= ? AND date < ? ORDER BY date, _pk")
                                  .c_str())
        , journalRows_(database_, "SELECT j._pk, j.hotDay, j.sportDay, j.meatSportActivity, j.day FROM DietDay d "
                                  "JOIN JornalDay j ON j._pk = d.jornalDay WHERE d.date >= ? AND d.date < ?")
        , timeRows_(database_, "SELECT t._pk, t.time, t.compleate, t.remind, t.reminderDate, t.userCreated, "
                               "t.otherTimeObject, t.joranlDay FROM DietDay d JOIN TimeRow t "
                               "ON t.joranlDay = d.jornalDay WHERE d.date >= ? AND d.date < ?")
    {
        read(kOtherFirstDay);
        dayObjects_.clear();
        journals_.clear();
        byKey_.clear();
    }
    void run() override { read(kFirstDay); }
    quint64 checksum() override { return checksum_; }

private:
    void read(size_t first)
    {
        for (auto *statement : {&dayRows_, &journalRows_, &timeRows_}) {
            statement->bind(1, static_cast<qint64>(days_[first].toMSecsSinceEpoch()));
            statement->bind(2, static_cast<qint64>(days_[first + 42].toMSecsSinceEpoch()));
        }
        while (dayRows_.next())
            dayObjects_.push_back(readDay(dayRows_));
        dayRows_.reset();
        while (journalRows_.next())
            readJournal();
        journalRows_.reset();
        while (timeRows_.next())
            readTimeRow();
        timeRows_.reset();
        touch();
    }

    void readJournal()
    {
        auto journal = std::make_unique<JournalRow>();
        journal->key = journalRows_.integer(0);
        if (!journalRows_.isNull(1))
            journal->hotDay = journalRows_.integer(1) != 0;
        if (!journalRows_.isNull(2))
            journal->sportDay = journalRows_.integer(2) != 0;
        if (!journalRows_.isNull(3))
            journal->meatSportActivity = journalRows_.integer(3);
        journal->day = journalRows_.integer(4);
        byKey_.insert(journal->key, journal.get());
        journals_.push_back(std::move(journal));
    }

    void readTimeRow()
    {
        auto row = std::make_unique<TimeRowRow>();
        row->key = timeRows_.integer(0);
        if (!timeRows_.isNull(1))
            row->time = static_cast<float>(timeRows_.real(1));
        if (!timeRows_.isNull(2))
            row->compleate = timeRows_.integer(2) != 0;
        if (!timeRows_.isNull(3))
            row->remind = timeRows_.integer(3) != 0;
        if (!timeRows_.isNull(4))
            row->reminderDate = timeRows_.integer(4);
        if (!timeRows_.isNull(5))
            row->userCreated = timeRows_.integer(5) != 0;
        if (!timeRows_.isNull(6))
            row->otherTimeObject = timeRows_.text(6);
        row->joranlDay = timeRows_.integer(7);
        byKey_.value(row->joranlDay)->timeRows.push_back(std::move(row));
    }

    void touch()
    {
        Checksum checksum;
        for (const auto &day : dayObjects_) {
            checksum.add(day->key).add(day->weight).add(day->chB);
            const JournalRow *journal = byKey_.value(day->jornalDay);
            checksum.add(journal->key).add(journal->sportDay).add(journal->meatSportActivity);
            for (const auto &row : journal->timeRows) {
                checksum.add(row->key).add(row->time).add(row->compleate).add(row->remind).add(row->reminderDate);
                checksum.add(row->otherTimeObject);
            }
        }
        checksum_ = checksum.value();
    }

    const std::vector<QDateTime> &days_;
    FileCopy file_;
    Database database_;
    typename Database::Statement dayRows_, journalRows_, timeRows_;
    std::vector<std::unique_ptr<DayRow>> dayObjects_;
    std::vector<std::unique_ptr<JournalRow>> journals_;
    QHash<qint64, JournalRow *> byKey_;
    quint64 checksum_ = 0;
};

} // namespace

Workload daysWithJournals(Fixtures &fixtures)
{
    Contender longer = contender<OurJournals<420>>("420 days", fixtures);
    longer.onlyCounted = true;
    return {.name = "42 days with their journals from a file of 3,650 days and 20,000 time rows",
            .contenders = {contender<OurJournals<42>>("ours", fixtures),
                           contender<BaselineJournals<PlainDatabase>>("plain C API", fixtures),
                           contender<BaselineJournals<QtDatabase>>("QSqlQuery", fixtures), std::move(longer)},
            .bars = {{Bar::Kind::TimesContender, 3, "plain C API"}, {Bar::Kind::StatementsAsFor, 0, "420 days"}}};
}

} // namespace kesto::bench
