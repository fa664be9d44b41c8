#include <QObject>
#include <QtPlugin>

/// A module of another age: its interface carries a number that this program does not know.
class OtherVersionModule : public QObject {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "tessara.host.PluginFactory/0")
};

#include "OtherVersionModule.moc"
