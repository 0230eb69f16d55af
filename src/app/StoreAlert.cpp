#include "app/StoreAlert.h"

#include "components/AlertCenter.h"
#include "platform/StringFormat.h"
#include "platform/StringTables.h"

#include <QDir>
#include <QFileInfo>

#include <utility>

namespace kesto
{

namespace
{

QString formatted(const QString &key, const QString &first, const QString &second = {})
{
    const QByteArray format = localized(key).toUtf8();
    return second.isNull() ? stringWithFormat(format.constData(), first)
                           : stringWithFormat(format.constData(), first, second);
}

QString message(const StoreProblem &problem)
{
    const QString path = QDir::toNativeSeparators(problem.path);
    switch (problem.kind) {
    case StoreProblem::Kind::Damaged:
        return formatted(QStringLiteral("store damaged"), path, QFileInfo(pathForStoreCopy(problem.path)).fileName());
    case StoreProblem::Kind::Newer:
        return formatted(QStringLiteral("store newer"), path);
    case StoreProblem::Kind::InUse:
        return formatted(QStringLiteral("store in use"), path);
    case StoreProblem::Kind::NoSpace:
        return formatted(QStringLiteral("store no space"), path);
    case StoreProblem::Kind::NoPermission:
        return formatted(QStringLiteral("store no permission"), path);
    case StoreProblem::Kind::Other:
        break;
    }
    return formatted(QStringLiteral("store other problem"), path, problem.reason);
}

} // namespace

void showStoreProblem(const StoreProblem &problem, std::function<void(StoreAnswer)> answered)
{
    Alert alert{.title = localized(QStringLiteral("store problem")), .message = message(problem)};
    if (problem.kind == StoreProblem::Kind::Damaged)
        alert.buttons.append({localized(QStringLiteral("store start afresh")), Alert::Role::Destructive});
    alert.buttons.append({localized(QStringLiteral("store quit")), Alert::Role::Cancel}); // changes nothing
    alert.answered = [answered = std::move(answered)](const AlertAnswer &answer) {
        answered(answer.isCancel ? StoreAnswer::Quit : StoreAnswer::StartWithEmptyStore);
    };
    AlertCenter::sharedCenter().show(std::move(alert));
}

} // namespace kesto
