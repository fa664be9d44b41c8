#pragma once

#include <QList>
#include <QWidget>

class ComposizioneDenti;
class QLabel;

/// What stands beside the tooth chart: the strip pbLavoriSeri(i) of services in evidence, framed in the colour of their
/// state, the short list pbInEvidenzaBreve(i) with laInEvidenzaBreve(i) under "In Evidenza", and the marks
/// imSaltaAllOcchio(i). Each holds its service in the property "tag".
class EvidencePanel : public QWidget {
    Q_OBJECT

public:
    explicit EvidencePanel(QWidget* parent = nullptr);

    void setComposition(const ComposizioneDenti& composition);

signals:
    void serviceClicked(const QString& servizio); ///< On any of the three.

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLabel* box(const QString& name, const QSize& size);
    void layOut();
    void showShortList(const ComposizioneDenti& composition);

    QList<QLabel*> strip_;
    QList<QLabel*> shortList_;
    QList<QLabel*> shortTexts_;
    QList<QLabel*> marks_;
    QWidget* shortListArea_ = nullptr;
    QWidget* marksArea_ = nullptr;
};
