#pragma once

#include <QDialog>
#include <QImage>

class QLabel;
class QScrollArea;
class QVBoxLayout;

namespace desk {

/// A picture or a text, "frmVisualizzaFile", to look at beside the other windows. A picture fills the window until it
/// is enlarged.
class FileViewer : public QDialog {
    Q_OBJECT

public:
    explicit FileViewer(const QString& path, QWidget* parent = nullptr);

    /// By the content, whatever the name: a picture that can be decoded, or a text that is not too long.
    static bool canShow(const QString& path);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildPicture(QVBoxLayout& column);
    void buildText(const QString& path, QVBoxLayout& column);
    void zoom(double factor); ///< 0 fits the picture into the window.
    double shown() const;     ///< The scale at which the picture stands in the window.
    void draw();

    QImage picture_;
    QLabel* canvas_ = nullptr;
    QScrollArea* area_ = nullptr;
    double zoom_ = 0;
};

} // namespace desk
