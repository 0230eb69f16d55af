#include "UserInterface.h"

#include "EngineObject.h"
#include "ImageProvider.h"

#include "components/AlertCenter.h"
#include "components/ProgressIndicator.h"
#include "components/Window.h"
#include "platform/Log.h"
#include "platform/Platform.h"

#include <QQmlExtensionPlugin>
#include <QQuickWindow>

Q_IMPORT_QML_PLUGIN(KestoPlugin)

namespace kesto
{

namespace
{

const QString folder = QStringLiteral("qrc:/qt/qml/Kesto/");

/// The pictures are small and few, so that a small texture holds those of a screen; Qt makes it of the window's size
/// otherwise, 8 MB of a tablet's. To be called before there is a window.
void drawPicturesTogether()
{
    for (const char *side : {"QSG_ATLAS_WIDTH", "QSG_ATLAS_HEIGHT"}) {
        if (!qEnvironmentVariableIsSet(side))
            qputenv(side, "512");
    }
}

} // namespace

UserInterface::UserInterface(Platform &platform)
    : platform_(platform)
    , appearance_(nullptr)
    , firstFrame_(nullptr)
{
    drawPicturesTogether();
    prepare(engine_, platform);
    giveTo(engine_, appearance_);
    giveTo(engine_, firstFrame_);
    QObject::connect(&engine_, &QQmlEngine::warnings, [](const QList<QQmlError> &warnings) {
        for (const auto &warning : warnings)
            log("interface: %@", warning.toString());
    });
    engine_.setOutputWarningsToStandardError(false);
    readAhead();
}

void UserInterface::readAhead()
{
    const bool tablet = platform_.shared<Window>().isTablet();
    for (const QString &file :
         {QStringLiteral("Main.qml"),
          tablet ? QStringLiteral("shell/SplitView.qml") : QStringLiteral("shell/SideMenuView.qml"),
          QStringLiteral("shell/NavigationView.qml"), QStringLiteral("shell/TableControllerView.qml"),
          QStringLiteral("rows/TextLine.qml"), QStringLiteral("rows/HeaderLine.qml")})
        readAhead_.push_back(std::make_unique<QQmlComponent>(&engine_, folder + file, QQmlComponent::Asynchronous));
}

void UserInterface::prepare(QQmlEngine &engine, const Platform &platform)
{
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    engine.addImageProvider(ImageProvider::scheme(),
                            new ImageProvider(platform.resourcesFolder() + QStringLiteral("/images")));
}

bool UserInterface::load()
{
    engine_.setInitialProperties(
        {{QStringLiteral("appWindow"), QVariant::fromValue(&platform_.shared<Window>())},
         {QStringLiteral("alertCenter"), QVariant::fromValue(&platform_.shared<AlertCenter>())},
         {QStringLiteral("progress"), QVariant::fromValue(&platform_.shared<ProgressIndicator>())}});
    firstFrame_.await();
    engine_.load(folder + QStringLiteral("Main.qml"));
    if (window() == nullptr)
        return false;
    firstFrame_.follow(*window());
    window()->installEventFilter(&appearance_);
    return true;
}

QQuickWindow *UserInterface::window() const
{
    const QList<QObject *> roots = engine_.rootObjects();
    return roots.isEmpty() ? nullptr : qobject_cast<QQuickWindow *>(roots.first());
}

} // namespace kesto
