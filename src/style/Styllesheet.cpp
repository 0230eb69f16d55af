#include "style/Styllesheet.h"

#include <QFont>
#include <QFontDatabase>
#include <QGuiApplication>

namespace kesto
{

void Styllesheet::customizeUIthroughtApperanceProtocol()
{
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance()) == nullptr)
        return;
    QFont font = QGuiApplication::font();
    if (const QString family = chosenFamily(QFontDatabase::families()); !family.isNull())
        font.setFamily(family);
    fontFamily_ = font.family();
    for (const QString &style : QFontDatabase::styles(fontFamily_))
        lightWeight_ = lightWeight_ || QFontDatabase::weight(fontFamily_, style) == QFont::Light;
    QGuiApplication::setFont(font);
}

QColor Styllesheet::barTintColor() const { return QColor::fromRgbF(0.59F, 0.86F, 0.58F); }
QColor Styllesheet::tintColor() const { return QColor::fromRgbF(0.36F, 0.36F, 0.36F); }
QColor Styllesheet::barTitleColor() const { return Qt::white; }
int Styllesheet::barTitleSize() const { return 18; }
QColor Styllesheet::tabTitleColor() const { return QColor::fromRgbF(1.0F / 3, 1.0F / 3, 1.0F / 3); }
QColor Styllesheet::selectedTabTitleColor() const { return Qt::black; }
QString Styllesheet::fontFamily() const
{
    return fontFamily_.isNull() ? QGuiApplication::font().family() : fontFamily_;
}
QString Styllesheet::backgroundImage() const { return QStringLiteral("background"); }

QString Styllesheet::chosenFamily(const QStringList &installed)
{
    for (const QString &wanted : {QStringLiteral("Helvetica Neue"), QStringLiteral("HelveticaNeue"),
                                  QStringLiteral("Inter"), QStringLiteral("Inter Variable")}) {
        if (installed.contains(wanted, Qt::CaseInsensitive))
            return wanted;
    }
    return {};
}

} // namespace kesto
