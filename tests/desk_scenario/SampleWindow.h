#pragma once

#include <QDialog>
#include <QStringList>

class QLineEdit;

namespace platform {
class ReportGrid;
}

/// A small window with a control of each kind that scripts speak to. It notes what its handlers see, in `heard`.
class SampleWindow : public QDialog {
    Q_OBJECT

public:
    explicit SampleWindow(const QString& name = QStringLiteral("frmProva"), QWidget* parent = nullptr);

    QStringList heard;
    QLineEdit* field(int index) const;
    platform::ReportGrid* grid() const { return grid_; }

private:
    void addFields();
    void addButtons();
    void addLists();
    void addGrid();
    void hear(const QString& what) { heard += what; }
    bool eventFilter(QObject* watched, QEvent* event) override;

    platform::ReportGrid* grid_ = nullptr;
};
