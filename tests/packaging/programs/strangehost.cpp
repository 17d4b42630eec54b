// A host whose own classes have names that the library and its archive use as well. None of them
// may take the place of the library's.

#include <nocturne/DarkUX>

#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QTabBar>

#include <cstdio>
#include <memory>

DarkUX *themeByCopiedPointer();
int foreignParts();

namespace {

int made = 0;
int ended = 0;

} // namespace

// Larger than the library's class of that name, so that a mixture of both ends in memory of others.
#define OWN_CLASS(Name, Base, Parameters, Arguments) \
    class Name : public Base \
    { \
        Q_OBJECT \
        Q_CLASSINFO("owner", "host") \
\
    public: \
        explicit Name Parameters; \
        ~Name() override; \
\
    private: \
        int m_room[1024] = {++made}; \
    }; \
    Name::Name Parameters : Base Arguments {} \
    Name::~Name() \
    { \
        ended += m_room[0] > 0; \
    }

OWN_CLASS(ComboBox, QComboBox, (QWidget * parent), (parent))
OWN_CLASS(TabBar, QTabBar, (QWidget * parent), (parent))
OWN_CLASS(LineEditButton, QPushButton, (), ())
OWN_CLASS(MidiPort, QObject, (const char *), ())
OWN_CLASS(SplitterHandle, QSplitterHandle, (Qt::Orientation orientation, QSplitter *parent),
          (orientation, parent))

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const DarkUX theme;
    const std::unique_ptr<QStyle> style(theme.style());
    if (themeByCopiedPointer() != &theme || DarkUX::getInstancePtr() != &theme) {
        std::fprintf(stderr, "the theme is registered in more than one place\n");
        return 1;
    }
    const int foreign = foreignParts();
    if (foreign + made + ended != 0) {
        std::fprintf(stderr, "%d parts are not the library's; %d of the host's made, %d ended\n",
                     foreign, made, ended);
        return 1;
    }
    // And the host gets its own.
    {
        QSplitter splitter;
        const ComboBox box(nullptr);
        const TabBar bar(nullptr);
        const LineEditButton button;
        const SplitterHandle handle(Qt::Horizontal, &splitter);
        const MidiPort port("mine");
    }
    return made == 5 && ended == 5 ? 0 : 1;
}

#include "strangehost.moc"
