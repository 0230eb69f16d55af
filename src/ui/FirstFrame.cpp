#include "FirstFrame.h"

#include "EngineObject.h"

#include <QQuickItem>
#include <QQuickWindow>

namespace kesto
{

/// Hears that a frame is being made while there is still time to add to it: when the items are arranged.
class Herald : public QQuickItem
{
    Q_OBJECT
public:
    explicit Herald(QQuickItem &root)
        : QQuickItem(&root)
    {
        polish();
    }

Q_SIGNALS:
    void frameIsMade();

protected:
    void updatePolish() override { Q_EMIT frameIsMade(); }
};

FirstFrame::FirstFrame(QObject *parent)
    : QObject(parent)
{
}

FirstFrame *FirstFrame::create(QQmlEngine *engine, QJSEngine *) { return objectOf<FirstFrame>(*engine); }

void FirstFrame::await() { begun_ = over_ = false; }

void FirstFrame::follow(QQuickWindow &window)
{
    auto *herald = new Herald(*window.contentItem());
    connect(herald, &Herald::frameIsMade, this, &FirstFrame::begin);
    // The frame goes out before the event loop turns again.
    connect(herald, &Herald::frameIsMade, this, &FirstFrame::end, Qt::QueuedConnection);
}

void FirstFrame::begin()
{
    begun_ = true;
    Q_EMIT begunChanged();
}

void FirstFrame::end()
{
    over_ = true;
    Q_EMIT overChanged();
}

} // namespace kesto

#include "FirstFrame.moc"
