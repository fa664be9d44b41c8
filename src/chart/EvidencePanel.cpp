#include "chart/EvidencePanel.h"

#include "chart/ComposizioneDenti.h"
#include "chart/StatusMark.h"
#include "chart/ToothPicture.h"
#include "platform/FormLayout.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QVBoxLayout>

using platform::form::arrayName;
using platform::form::named;

namespace {

constexpr QSize STRIP_BOX(52, 52);
constexpr QSize SHORT_BOX(20, 20);
constexpr QSize MARK_BOX(30, 30);

QColor colourOf(StatoDente stato) {
    if (stato == StatoDente::Finito) return {0, 192, 0};
    return stato == StatoDente::Aperto ? QColor(192, 0, 0) : QColor(192, 192, 0);
}

/// Shows the service's picture or, where the file is missing, its code.
void fill(QLabel* label, const ServizioEvidenziato& entry, const QSize& size) {
    label->setProperty("tag", entry.servizio);
    label->setToolTip(entry.descrizione);
    label->setAccessibleName(entry.descrizione);
    const QPixmap picture = loadPicture(entry.immagine, size - QSize(6, 6), label->devicePixelRatioF());
    if (picture.isNull())
        label->setText(label->fontMetrics().elidedText(entry.servizio, Qt::ElideRight, size.width() - 6));
    else
        label->setPixmap(picture);
    label->show();
}

void clear(QLabel* label) {
    label->setProperty("tag", QString());
    label->setToolTip(QString());
    label->clear();
    label->hide();
}

} // namespace

EvidencePanel::EvidencePanel(QWidget* parent)
    : QWidget(parent) {
    const ComposizioneDenti::Options places;
    for (int place = 0; place < places.stripPlaces; ++place)
        strip_.append(box(arrayName("pbLavoriSeri", place), STRIP_BOX));
    for (int place = 0; place < places.shortListPlaces; ++place) {
        shortList_.append(box(arrayName("pbInEvidenzaBreve", place), SHORT_BOX));
        shortTexts_.append(box(arrayName("laInEvidenzaBreve", place), QSize()));
    }
    for (int place = 0; place < ComposizioneDenti::POSTI_ALL_OCCHIO; ++place)
        marks_.append(box(arrayName("imSaltaAllOcchio", place), MARK_BOX));
    layOut();
}

QLabel* EvidencePanel::box(const QString& name, const QSize& size) {
    auto* label = named(new QLabel(this), name);
    label->setAlignment(size.isEmpty() ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignCenter);
    if (!size.isEmpty()) label->setFixedSize(size);
    label->setCursor(Qt::PointingHandCursor);
    label->installEventFilter(this);
    label->hide();
    return label;
}

void EvidencePanel::layOut() {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* strip = new QGridLayout;
    for (int place = 0; place < strip_.size(); ++place)
        strip->addWidget(strip_[place], place / 5, place % 5);
    for (QLabel* label : strip_) {
        label->setFrameStyle(QFrame::Box | QFrame::Plain);
        label->setLineWidth(2);
    }
    strip->setColumnStretch(5, 1);
    layout->addLayout(strip);

    shortListArea_ =
        named(platform::form::titledArea(QStringLiteral("In Evidenza"), this), QStringLiteral("pbEvidenziaInBreve"));
    auto* list = new QGridLayout(shortListArea_);
    for (int place = 0; place < shortList_.size(); ++place) {
        list->addWidget(shortList_[place], place, 0);
        list->addWidget(shortTexts_[place], place, 1);
    }
    list->setColumnStretch(1, 1);
    layout->addWidget(shortListArea_);

    marksArea_ = named(new QWidget(this), QStringLiteral("pbSaltaAllOcchio"));
    auto* marks = new QGridLayout(marksArea_);
    marks->setContentsMargins(0, 0, 0, 0);
    for (int place = 0; place < marks_.size(); ++place)
        marks->addWidget(marks_[place], place / 6, place % 6);
    marks->setColumnStretch(6, 1);
    layout->addWidget(marksArea_);
    layout->addStretch();
}

void EvidencePanel::setComposition(const ComposizioneDenti& composition) {
    for (QLabel* label : strip_)
        clear(label);
    for (int place = 0; place < std::min(strip_.size(), composition.strip().size()); ++place) {
        const ServizioEvidenziato& entry = composition.strip()[place];
        fill(strip_[place], entry, STRIP_BOX);
        // The colours of the frame are its own, not those of the marks: red is work going on, not work to begin.
        QPalette palette = strip_[place]->palette();
        palette.setColor(QPalette::WindowText, colourOf(entry.stato));
        strip_[place]->setPalette(palette);
    }
    showShortList(composition);
    for (int place = 0; place < marks_.size(); ++place) {
        const ServizioEvidenziato& entry = composition.atAGlance()[static_cast<std::size_t>(place)];
        if (entry.servizio.isEmpty())
            clear(marks_[place]);
        else
            fill(marks_[place], entry, MARK_BOX);
    }
    shortListArea_->setVisible(composition.options().evidenziaBreve);
    marksArea_->setVisible(composition.options().saltaAllOcchio);
}

void EvidencePanel::showShortList(const ComposizioneDenti& composition) {
    for (int place = 0; place < shortList_.size(); ++place) {
        clear(shortList_[place]);
        clear(shortTexts_[place]);
        if (place >= composition.shortList().size()) continue;
        const ServizioEvidenziato& entry = composition.shortList()[place];
        fill(shortList_[place], entry, SHORT_BOX);
        shortList_[place]->setPixmap(statusMark(entry.stato, SHORT_BOX - QSize(4, 4), devicePixelRatioF()));
        shortTexts_[place]->setProperty("tag", entry.servizio);
        shortTexts_[place]->setToolTip(entry.descrizione);
        shortTexts_[place]->setText(entry.breve);
        shortTexts_[place]->show();
    }
}

bool EvidencePanel::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonRelease && static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
        const QString servizio = watched->property("tag").toString();
        if (!servizio.isEmpty()) emit serviceClicked(servizio);
    }
    return QWidget::eventFilter(watched, event);
}
