#ifndef NOCTURNE_MIDIPORT_P_H
#define NOCTURNE_MIDIPORT_P_H

#include <nocturne/midi/qmidimessage.h>

#include <QtCore/QMap>
#include <QtCore/QStringList>

#include <rtmidi/RtMidi.h>

#include <exception>
#include <memory>
#include <string>
#include <vector>

namespace Nocturne {

/// What input and output share: finding a system interface that works, listing ports under names
/// that differ, opening them, and keeping the errors of RtMidi away from the host.
///
/// Without a device every operation does nothing.
class MidiPort
{
public:
    /// \a portName is what opened ports are called on the service.
    explicit MidiPort(const char *portName)
        : m_portName(portName)
    {}

    /// Creates the device with \a create(interface): by RtMidi's own choice or, when that fails,
    /// by the first compiled interface that does not. Null, after one warning that there is no
    /// MIDI \a direction, when none works.
    template <typename Device, typename Create>
    std::unique_ptr<Device> createDevice(const char *direction, Create create);

    /// Forgets the device; the port does nothing from now on.
    void detach();

    bool isOpen() const;
    QStringList portNames();
    bool openPort(const QString &name);
    void openPort(unsigned int index);
    void openVirtualPort(const QString &name);
    void closeOpenPort();

    /// Runs \a work, which calls RtMidi. What it throws is reported, not passed on.
    template <typename Work>
    void guarded(Work work);

    /// \a names with a number appended to each that an earlier result contains.
    static QMap<int, QString> distinctNames(const QStringList &names);

    /// Writes and logs an error text as far as its rank asks for.
    static void report(RtMidiError::Type type, const std::string &text);

private:
    void attach(RtMidi *device, const char *direction, QStringList errors);
    static void onError(RtMidiError::Type type, const std::string &text, void *port);

    std::string m_portName;
    RtMidi *m_device = nullptr;
    QMap<int, QString> m_names;
    bool m_virtualPortOpen = false;
    bool m_failed = false; ///< RtMidi has reported something since this was reset
};

/// The message in \a bytes, received \a seconds after the one before. Missing bytes read as 0.
QMidiMessage decodeMidiMessage(double seconds, const std::vector<unsigned char> &bytes);

/// What RtMidi calls for each message received, with the QMidiIn as \a input.
void receiveMidiMessage(double seconds, std::vector<unsigned char> *bytes, void *input);

template <typename Device, typename Create>
std::unique_ptr<Device> MidiPort::createDevice(const char *direction, Create create)
{
    // RtMidi's own choice gives up when the first interface fails, even if another would work.
    std::vector<RtMidi::Api> interfaces;
    RtMidi::getCompiledApi(interfaces);
    interfaces.insert(interfaces.begin(), RtMidi::UNSPECIFIED);

    QStringList errors;
    std::unique_ptr<Device> device;
    for (RtMidi::Api interface : interfaces) {
        try {
            device = create(interface);
            break;
        } catch (const std::exception &error) {
            errors << QString::fromLocal8Bit(error.what());
        }
    }
    attach(device.get(), direction, errors);
    return device;
}

template <typename Work>
void MidiPort::guarded(Work work)
{
    if (!m_device)
        return;
    try {
        work();
    } catch (const RtMidiError &error) {
        onError(error.getType(), error.getMessage(), this);
    } catch (const std::exception &error) {
        onError(RtMidiError::UNSPECIFIED, error.what(), this);
    }
}

} // namespace Nocturne

#endif
