#pragma once

#include <QHash>
#include <QObject>
#include <QString>
#include <QTimer>
#include <functional>

/// Hears which records changed, and tells it on: at most once per turn of the event loop, whatever was announced in it,
/// so that no list is read twice for one change. Who announces knows no window. Owned by the module's assembly; after
/// its end nothing is told any more.
class Changes : public QObject {
public:
    struct Batch {
        QHash<QString, QString> records; ///< By record type, the id of the record to look at; empty for none.
        bool everything = false;         ///< All that is shown of the open patient, what others wrote included.
    };
    using Telling = std::function<void(const Batch&)>;

    explicit Changes(Telling tell);
    ~Changes() override;

    void announce(const QString& t1, const QString& id);
    void announceEverything();
    void deliver(); ///< At once what has been announced; nothing when that was nothing.

private:
    Telling tell_;
    Batch batch_;
    bool pending_ = false;
    bool delivering_ = false;
    QTimer timer_;
};

// The same for whoever changes records. Without a running module nobody hears it.

/// Records of a type changed; `id` is the one to look at, empty for none.
void announceChange(const QString& t1, const QString& id = {});
/// For the end of a modal window: who opened it sees what changed at once.
void deliverChanges();
