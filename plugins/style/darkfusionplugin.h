#ifndef DARKFUSIONPLUGIN_H
#define DARKFUSIONPLUGIN_H

#include <QtWidgets/QStylePlugin>

/// Offers DarkFusionStyle, with the theme's palette, to programs that know nothing of the library.
class DarkFusionPlugin : public QStylePlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QStyleFactoryInterface_iid FILE "darkfusion.json")

public:
    using QStylePlugin::QStylePlugin;

    /// A new style for the key "DarkFusion" in any case, null for every other.
    QStyle *create(const QString &key) override;
};

#endif
