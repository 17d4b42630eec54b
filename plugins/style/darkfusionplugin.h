#ifndef DARKFUSIONPLUGIN_H
#define DARKFUSIONPLUGIN_H

#include <QtWidgets/QStylePlugin>

/// Offers DarkFusionStyle and DarkReadableStyle, each with its palette, to programs that know
/// nothing of the library.
class DarkFusionPlugin : public QStylePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QStyleFactoryInterface_iid FILE "darkfusion.json")

public:
    using QStylePlugin::QStylePlugin;

    /// A new style for the keys "DarkFusion" and "DarkFusionReadable" in any case, null for every
    /// other.
    QStyle *create(const QString &key) override;
};

#endif
