#ifndef NOCTURNE_MIDIPORT_P_H
#define NOCTURNE_MIDIPORT_P_H

#include <nocturne/midi/driversilence_p.h>
#include <nocturne/midi/qmidimessage.h>

#include <QtCore/QMap>
#include <QtCore/QStringList>

#include <rtmidi/RtMidi.h>

#include <algorithm>
#include <exception>
#include <memory>
#include <set>
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
    /// by a compiled interface that does not. Null when none works. A port without device or
    /// without a service says once, with the reasons, that there is no MIDI \a direction.
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

    /// Says that nothing is sent because no port is open, once until one has been opened.
    void reportClosed();

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
    static void keepAbsence(RtMidiError::Type type, const std::string &text, void *port);

    std::string m_portName;
    RtMidi *m_device = nullptr;
    QMap<int, QString> m_names;
    bool m_virtualPortOpen = false;
    bool m_failed = false;            ///< RtMidi has reported something since this was reset
    bool m_listing = false;           ///< the ports are being asked for
    std::set<std::string> m_absences; ///< why they could not be listed of late; reported already
    bool m_closedReported = false;
};

/// The message in \a bytes, received \a seconds after the one before. Missing bytes read as 0.
QMidiMessage decodeMidiMessage(double seconds, const std::vector<unsigned char> &bytes);

/// What RtMidi calls for each message received, with the QMidiIn as \a input.
void receiveMidiMessage(double seconds, std::vector<unsigned char> *bytes, void *input);

template <typename Device, typename Create>
std::unique_ptr<Device> MidiPort::createDevice(const char *direction, Create create)
{
    const DriverSilence silence;
    // RtMidi's own choice gives up when an interface fails, even if another would work. As a rule
    // it is the first that has failed, and would say so again.
    std::vector<RtMidi::Api> interfaces;
    RtMidi::getCompiledApi(interfaces);
    if (!interfaces.empty())
        std::rotate(interfaces.begin(), interfaces.begin() + 1, interfaces.end());
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
    const DriverSilence silence;
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
