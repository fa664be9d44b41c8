#include "chart/EvidencePanel.h"

#include "chart/ComposizioneDenti.h"
#include "chart/PictureFiles.h"
#include "chart/ServiceBadge.h"
#include "chart/StatusMark.h"
#include "platform/FormLayout.h"

#include <QFrame>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

using platform::form::arrayName;
using platform::form::named;

namespace {

constexpr QSize STRIP_BOX(52, 52); ///< Border included.
constexpr int STRIP_BORDER = 2;
constexpr int STRIP_COLUMNS = 4;
constexpr int MARK_COLUMNS = 6;
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
    for (int place = 0; place < places.stripPlaces; ++place) {
        auto* border = named(new QFrame(this), arrayName("shLavoriSeri", place));
        border->setFrameStyle(QFrame::Box | QFrame::Plain);
        border->setLineWidth(STRIP_BORDER);
        border->setFixedSize(STRIP_BOX);
        border->hide();
        borders_.append(border);
        strip_.append(box(arrayName("pbLavoriSeri", place), STRIP_BOX - 2 * QSize(STRIP_BORDER, STRIP_BORDER)));
    }
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
    for (int place = 0; place < strip_.size(); ++place) {
        auto* inside = new QVBoxLayout(borders_[place]);
        inside->setContentsMargins({});
        inside->addWidget(strip_[place]);
        strip->addWidget(borders_[place], place / STRIP_COLUMNS, place % STRIP_COLUMNS);
    }
    // Its room is kept, so that the teeth stand still when the first service comes.
    setMinimumWidth(STRIP_COLUMNS * (STRIP_BOX.width() + strip->spacing()) - strip->spacing());
    strip->setColumnStretch(STRIP_COLUMNS, 1);
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
        marks->addWidget(marks_[place], place / MARK_COLUMNS, place % MARK_COLUMNS);
    marks->setColumnStretch(MARK_COLUMNS, 1);
    layout->addWidget(marksArea_);
    layout->addStretch();
}

void EvidencePanel::setComposition(const ComposizioneDenti& composition) {
    for (int place = 0; place < strip_.size(); ++place)
        showInStrip(place, composition.strip().value(place));
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

void EvidencePanel::showInStrip(int place, const ServizioEvidenziato& entry) {
    QFrame* border = borders_[place];
    border->setVisible(!entry.servizio.isEmpty());
    if (entry.servizio.isEmpty()) return strip_[place]->free();
    fill(strip_[place], entry, STRIP_BOX);
    // The colours of the borders are their own, not those of the marks: red is work going on, not work to begin.
    QPalette palette = border->palette();
    palette.setColor(QPalette::WindowText, colourOf(entry.stato));
    if (palette != border->palette()) border->setPalette(palette);
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
