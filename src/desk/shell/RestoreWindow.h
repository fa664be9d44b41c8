#pragma once

#include "desk/data/DatabaseUrl.h"
#include "desk/data/SqliteCopy.h"

#include <QDialog>
#include <QList>

class QPushButton;
class QTreeWidget;

namespace desk {

/// Tells that the archive is damaged and offers to put a safety copy in its place, "frmRipristino": the newest ones
/// that lie where copies usually do, with what they hold, or any other file. Accepted once one has been restored.
class RestoreWindow : public QDialog {
    Q_OBJECT

public:
    RestoreWindow(DatabaseUrl url, const QString& damage, QWidget* parent = nullptr);

private:
    void build(const QString& damage);
    void listCopies();
    void restoreChosen();
    void restoreOther();
    void restore(const QString& path);

    DatabaseUrl url_;
    QList<FoundCopy> copies_;
    QTreeWidget* list_;
    QPushButton* restore_;
};

} // namespace desk
