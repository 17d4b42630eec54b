#ifndef NOCTURNE_TESTS_QTVERSION_H
#define NOCTURNE_TESTS_QTVERSION_H

#include <QtCore/QLibraryInfo>
#include <QtCore/QPointer>
#include <QtCore/QProcess>
#include <QtGui/QTabletEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyleOption>

#include <csignal>
#include <sys/prctl.h>

/// Where Qt 5 and Qt 6 differ in what a test sees. No test asks for the version itself.
namespace QtVersion {

constexpr bool isQt6 = QT_VERSION >= QT_VERSION_CHECK(6, 0, 0);

/// What the names of the library, its packages and its folder of headers end in.
constexpr const char *suffix = isQt6 ? "-qt6" : "";
constexpr int otherMajor = isQt6 ? 5 : 6;

/// -2.5 rounded: halves go away from zero in Qt 6, up in Qt 5.
constexpr int roundedNegativeHalf = isQt6 ? -3 : -2;

/// Ends with this program, even if that crashes.
class MortalProcess : public QProcess
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
protected:
    void setupChildProcess() override
    {
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    }
#else
public:
    MortalProcess()
    {
        setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
    }
#endif
};

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)

inline void setOrientation(QStyleOptionProgressBar &option, Qt::Orientation orientation)
{
    option.orientation = orientation;
}

inline void setShortcutWidth(QStyleOptionMenuItem &option, int width)
{
    option.tabWidth = width;
}

/// Where the tools stand that a build runs.
inline QString toolsPath()
{
    return QLibraryInfo::location(QLibraryInfo::BinariesPath);
}

/// A pen that touches a tablet at \a position of a widget, lightly.
inline QTabletEvent penEvent(QEvent::Type type, const QPointF &position, const QPointF &global)
{
    return QTabletEvent(type, position, global, QTabletEvent::Stylus, QTabletEvent::Pen, 0.5, 0, 0,
                        0, 0, 0, Qt::NoModifier, 1, Qt::LeftButton, Qt::LeftButton);
}

#else

inline void setOrientation(QStyleOptionProgressBar &option, Qt::Orientation orientation)
{
    option.state.setFlag(QStyle::State_Horizontal, orientation == Qt::Horizontal);
}

inline void setShortcutWidth(QStyleOptionMenuItem &option, int width)
{
    option.reservedShortcutWidth = width;
}

inline QString toolsPath()
{
    return QLibraryInfo::path(QLibraryInfo::LibraryExecutablesPath);
}

inline QTabletEvent penEvent(QEvent::Type type, const QPointF &position, const QPointF &global)
{
    // Belongs to the application, without which it could not even end.
    static QPointer<QPointingDevice> pen = new QPointingDevice(
        QStringLiteral("pen"), 1, QInputDevice::DeviceType::Stylus,
        QPointingDevice::PointerType::Pen,
        QInputDevice::Capability::Position | QInputDevice::Capability::Pressure, 1, 1);
    pen->setParent(qApp);
    return QTabletEvent(type, pen, position, global, 0.5, 0, 0, 0, 0, 0, Qt::NoModifier,
                        Qt::LeftButton, Qt::LeftButton);
}

#endif

} // namespace QtVersion

#endif
