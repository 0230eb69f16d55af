#include "components/RatingPrompt.h"

#include "components/AlertCenter.h"
#include "platform/Clock.h"
#include "platform/Log.h"
#include "platform/Platform.h"
#include "platform/StringTables.h"
#include "platform/UserDefaults.h"

#include <QUrl>

namespace kesto
{

namespace
{
const QString firstUseKey = QStringLiteral("kRatingFirstUseKey"); // date
const QString usesKey = QStringLiteral("kRatingUsesKey");         // integer
const QString remindKey = QStringLiteral("kRatingRemindedKey");   // date of "later"
const QString finishedKey = QStringLiteral("kRatingFinishedKey"); // flag: rated, or wants no more questions
enum Answer { Rate, Later, Never };
} // namespace

RatingPrompt &RatingPrompt::sharedPrompt() { return Platform::current().shared<RatingPrompt>(); }

RatingPrompt::RatingPrompt(Platform &platform)
    : platform_(platform)
{
}

void RatingPrompt::appLaunched(bool canPrompt) { countUse(canPrompt); }
void RatingPrompt::appEnteredForeground(bool canPrompt) { countUse(canPrompt); }

void RatingPrompt::countUse(bool canPrompt)
{
    UserDefaults &defaults = platform_.userDefaults();
    if (!defaults.dateForKey(firstUseKey))
        defaults.setValue(platform_.clock().now(), firstUseKey);
    defaults.setInteger(defaults.integerForKey(usesKey) + 1, usesKey);
    if (canPrompt && isTime())
        ask();
}

bool RatingPrompt::isTime() const
{
    const UserDefaults &defaults = platform_.userDefaults();
    if (asking_ || defaults.boolForKey(finishedKey) || defaults.integerForKey(usesKey) < settings_.usesUntilPrompt)
        return false;
    const auto passed = [this](const std::optional<QDateTime> &since, int days) {
        return !since ||
               platform_.calendar().dateByAdding(days, Calendar::Unit::Day, *since) <= platform_.clock().now();
    };
    return passed(defaults.dateForKey(firstUseKey), settings_.daysUntilPrompt) &&
           passed(defaults.dateForKey(remindKey), settings_.timeBeforeReminding);
}

void RatingPrompt::ask()
{
    asking_ = true;
    const QString name = localized(QStringLiteral("Диета Кесто"));
    AlertCenter::sharedCenter().show(
        {.title = stringWithFormat(localized(QStringLiteral("rating title")).toUtf8().constData(), name),
         .message = localized(QStringLiteral("rating message")),
         .buttons = {{.title = localized(QStringLiteral("rating rate"))},
                     {.title = localized(QStringLiteral("rating later")), .role = Alert::Role::Cancel},
                     {.title = localized(QStringLiteral("rating never"))}},
         .context = this,
         .answered = [this](const AlertAnswer &answer) {
             asking_ = false;
             if (answer.buttonIndex == Rate)
                 rateApp();
             else if (answer.buttonIndex == Later)
                 platform_.userDefaults().setValue(platform_.clock().now(), remindKey);
             else
                 platform_.userDefaults().setBool(true, finishedKey);
         }});
}

void RatingPrompt::rateApp()
{
    platform_.userDefaults().setBool(true, finishedKey);
    const QUrl page(QStringLiteral("appstream://") + settings_.appID);
    if (!platform_.openUrl(page))
        log("can't open %@", page.toString());
}

} // namespace kesto
