#pragma once

#include <QObject>
#include <QString>

namespace kesto
{

class Platform;

/// Asks the user, after some days and some uses, to rate the program: once and for all, or again later.
class RatingPrompt : public QObject
{
    Q_OBJECT
public:
    struct Settings
    {
        QString appID;               ///< the program's identifier in the software catalogue
        int daysUntilPrompt = 1;     ///< days since the first use
        int usesUntilPrompt = 10;    ///< launches and returns to the foreground
        int timeBeforeReminding = 2; ///< days after "later"
    };

    static RatingPrompt &sharedPrompt();
    explicit RatingPrompt(Platform &platform);

    void configure(const Settings &settings) { settings_ = settings; }
    /// Counts a use, and asks when it is time and canPrompt.
    void appLaunched(bool canPrompt);
    void appEnteredForeground(bool canPrompt);
    /// Opens the program's page in the software catalogue; the user is not asked any more.
    void rateApp();

private:
    void countUse(bool canPrompt);
    [[nodiscard]] bool isTime() const;
    void ask();

    Platform &platform_;
    Settings settings_;
    bool asking_ = false;
};

} // namespace kesto
