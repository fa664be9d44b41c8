#include "chart/EvidencePanel.h"

#include "chart/ComposizioneDenti.h"
#include "chart/PictureFiles.h"
#include "chart/ServiceBadge.h"
#include "chart/StatusMark.h"
#include "platform/FormLayout.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
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
void fill(ServiceBadge* badge, const ServizioEvidenziato& entry, const QSize& size) {
    badge->setService(entry.servizio, entry.descrizione, statusText(entry.stato));
    const auto picture = [file = entry.immagine](const QSize& room, qreal ratio) {
        return loadPicture(file, room, ratio);
    };
    if (badge->setDrawing(size - QSize(6, 6), picture)) return;
    badge->clearDrawing();
    badge->setText(badge->fontMetrics().elidedText(entry.servizio, Qt::ElideRight, size.width() - 6));
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

ServiceBadge* EvidencePanel::box(const QString& name, const QSize& size) {
    auto* badge = named(new ServiceBadge(this), name);
    badge->setAlignment(size.isEmpty() ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignCenter);
    // A text of the short list belongs to the mark beside it, where the keyboard stops.
    if (!size.isEmpty()) {
        badge->setFixedSize(size);
        badge->setFocusPolicy(Qt::TabFocus);
    }
    connect(badge, &ServiceBadge::clicked, this, &EvidencePanel::serviceClicked);
    return badge;
}

void EvidencePanel::layOut() {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* strip = new QGridLayout;
    for (int place = 0; place < strip_.size(); ++place)
        strip->addWidget(strip_[place], place / 5, place % 5);
    for (ServiceBadge* badge : strip_) {
        badge->setFrameStyle(QFrame::Box | QFrame::Plain);
        badge->setLineWidth(2);
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
    for (int place = 0; place < strip_.size(); ++place) {
        if (place < composition.strip().size())
            showInStrip(strip_[place], composition.strip()[place]);
        else
            strip_[place]->free();
    }
    showShortList(composition);
    for (int place = 0; place < marks_.size(); ++place) {
        const ServizioEvidenziato& entry = composition.atAGlance()[static_cast<std::size_t>(place)];
        if (entry.servizio.isEmpty())
            marks_[place]->free();
        else
            fill(marks_[place], entry, MARK_BOX);
    }
    shortListArea_->setVisible(composition.options().evidenziaBreve);
    marksArea_->setVisible(composition.options().saltaAllOcchio);
}

void EvidencePanel::showInStrip(ServiceBadge* badge, const ServizioEvidenziato& entry) {
    fill(badge, entry, STRIP_BOX);
    // The colours of the frame are its own, not those of the marks: red is work going on, not work to begin.
    QPalette palette = badge->palette();
    palette.setColor(QPalette::WindowText, colourOf(entry.stato));
    if (palette != badge->palette()) badge->setPalette(palette);
}

void EvidencePanel::showShortList(const ComposizioneDenti& composition) {
    for (int place = 0; place < shortList_.size(); ++place) {
        if (place >= composition.shortList().size()) {
            shortList_[place]->free();
            shortTexts_[place]->free();
            continue;
        }
        const ServizioEvidenziato& entry = composition.shortList()[place];
        shortList_[place]->setService(entry.servizio, entry.descrizione, statusText(entry.stato));
        const auto mark = [stato = entry.stato](const QSize& size, qreal ratio) {
            return statusMark(stato, size, ratio);
        };
        shortList_[place]->setDrawing(SHORT_BOX - QSize(4, 4), mark);
        shortTexts_[place]->setService(entry.servizio, entry.descrizione, QString());
        shortTexts_[place]->setText(entry.breve);
    }
}
