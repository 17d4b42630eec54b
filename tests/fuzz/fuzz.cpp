// What comes from outside, fuzzed: a broken promise aborts. NOCTURNE_FUZZ_TARGET names the part
// that this program feeds; there is one program for each.
//
//   cmake --preset fuzz && cmake --build --preset fuzz
//   build/fuzz/bin/fuzz_drops -max_total_time=600

#include "gestures.h"

#include <deskstate.h>
#include <testpictures.h>

#include <nocturne/ColorButton>
#include <nocturne/CroppingLabel>
#include <nocturne/DarkUX>
#include <nocturne/GradientTool>
#include <nocturne/KeySequenceEdit>
#include <nocturne/ListWidget>
#include <nocturne/SpinBox>
#include <nocturne/midi/midiport_p.h>

#include <QtCore/QDataStream>
#include <QtCore/QJsonDocument>
#include <QtGui/QClipboard>
#include <QtWidgets/QLineEdit>

#include <cstdlib>
#include <memory>

namespace {

void promise(bool kept)
{
    if (!kept)
        std::abort();
}

[[maybe_unused]] void feedMidi(const QByteArray &data)
{
    const std::vector<unsigned char> bytes(data.begin(), data.end());
    QMidiMessage message = Nocturne::decodeMidiMessage(0.001, bytes);
    promise(message.channel() >= 0 && message.channel() <= 16);
    promise(message.type() >= 0 && message.type() <= 255);
    const QMidiMessage::Bytes raw = message.rawMessage();
    if (message.type() == QMidiMessage::SystemExclusive) {
        promise(raw.size() >= bytes.size() && raw.back() == 0xF7);
        promise(std::equal(bytes.begin(), bytes.end(), raw.begin()));
    } else if (!raw.empty() && bytes.size() >= 3 && message.type() != QMidiMessage::ProgramChange) {
        promise(std::equal(raw.begin(), raw.end(), bytes.begin()));
    }
}

/// Drops the data in several formats on \a target.
void dropOn(QWidget *target, const QByteArray &data)
{
    const QByteArray content = data.mid(1);
    const int formats = data.isEmpty() ? 0 : data[0];
    static const char *const names[] = {"application/x-color", "text/uri-list", "text/plain",
                                        "application/x-qabstractitemmodeldatalist"};
    QMimeData mime;
    for (int i = 0; i < 4; ++i) {
        if (formats & 1 << i)
            mime.setData(names[i], content);
    }
    if (formats & 16)
        mime.setColorData(QVariant(QString::fromUtf8(content)));
    TestSupport::drop(target, mime, {6, 6});
}

[[maybe_unused]] void feedDrops(const QByteArray &data)
{
    static ListWidget list;
    static ColorButton button;
    list.setDragDropMode(QAbstractItemView::DragDrop);
    dropOn(list.viewport(), data);
    dropOn(&button, data);
    list.clear();
    button.grab();
}

/// A ramp of any doubles, dragged about.
[[maybe_unused]] void feedRamps(const QByteArray &data)
{
    QDataStream stream(data);
    Ramp ramp;
    while (!stream.atEnd() && ramp.size() < 32) {
        double position = 0.0;
        quint32 color = 0;
        stream >> position >> color;
        ramp << qMakePair(position, QColor::fromRgba(color));
    }
    static GradientTool editor;
    editor.resize(210, 60);
    editor.setRamp(ramp);
    promise(editor.getSliderNum() >= 2 && editor.getColorTable().size() == 256);
    for (const auto &stop : editor.getRamp())
        promise(stop.first >= 0.0 && stop.first <= 1.0);
    for (char byte : data.left(16)) {
        const int x = static_cast<unsigned char>(byte);
        TestSupport::sendMouse(&editor, QEvent::MouseButtonPress, {x, x % 60}, Qt::LeftButton,
                               Qt::LeftButton);
        TestSupport::sendDrag(&editor, {x, x * 2});
        TestSupport::sendMouse(&editor, QEvent::MouseButtonRelease, {x, x}, Qt::LeftButton, {});
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        promise(editor.getSliderNum() >= 2);
    }
    editor.grab();
}

/// Settings of the desk: what was read is written and read again as the same.
[[maybe_unused]] void feedDesk(const QByteArray &data)
{
    const DeskState state = DeskState::fromJson(QJsonDocument::fromJson(data).object());
    promise(state.look.black < state.look.white && state.look.ramp.size() >= 2);
    promise(state.current >= -1 && state.current < state.clips.size());
    for (const Clip &clip : state.clips)
        promise(0 <= clip.in && clip.in <= clip.out && clip.out < clip.length);
    promise(DeskState::fromJson(state.toJson()) == state);
}

/// What is pasted and typed into fields.
[[maybe_unused]] void feedTexts(const QByteArray &data)
{
    static SpinBox box;
    static CroppingLabel label;
    static KeySequenceEdit keys;
    const QString text = QString::fromUtf8(data);
    QGuiApplication::clipboard()->setText(text);
    auto *editor = box.findChild<QLineEdit *>();
    editor->selectAll();
    editor->paste();
    box.interpretText();
    promise(box.value() >= box.minimum() && box.value() <= box.maximum());
    label.resize(1 + data.size() % 300, 20);
    label.setText(text);
    label.grab();
    keys.setKeySequence(QKeySequence(text));
    keys.grab();
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static QApplication application(*argc, *argv);
    static DarkUX theme;
    QApplication::setStyle(theme.style());
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size)
{
    NOCTURNE_FUZZ_TARGET(
        QByteArray::fromRawData(reinterpret_cast<const char *>(data), static_cast<int>(size)));
    return 0;
}
