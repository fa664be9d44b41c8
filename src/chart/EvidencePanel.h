#pragma once

#include <QList>
#include <QWidget>

class ChartComposition;
class QFrame;
class QLayout;
class ServiceBadge;
struct HighlightedService;

/// What stands beside the tooth chart: the strip pbLavoriSeri(i) of services in evidence, each in a border
/// shLavoriSeri(i) of the colour of its state, the short list pbInEvidenzaBreve(i) with laInEvidenzaBreve(i) under "In
/// Evidenza", and the marks imSaltaAllOcchio(i). Each holds its service in the property "tag", and can be reached with
/// Tab and pressed with Space. Its size does not depend on how much of it is filled.
class EvidencePanel : public QWidget {
    Q_OBJECT

public:
    explicit EvidencePanel(QWidget* parent = nullptr);

    void setComposition(const ChartComposition& composition);

signals:
    void serviceClicked(const QString& service); ///< On any of the three.

private:
    ServiceBadge* box(const QString& name, const QSize& size);
    void layOut();
    QLayout* layOutStrip();
    void layOutShortList();
    void showInStrip(int place, const HighlightedService& entry);
    void showShortList(const ChartComposition& composition);

    QList<QFrame*> borders_;
    QList<ServiceBadge*> strip_;
    QList<ServiceBadge*> shortList_;
    QList<ServiceBadge*> shortTexts_;
    QList<ServiceBadge*> marks_;
    QWidget* shortListArea_ = nullptr;
    QWidget* marksArea_ = nullptr;
};
