#include "chart/EvidencePanel.h"

#include "chart/ChartComposition.h"
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
constexpr int STRIP_COLUMNS = 5;
constexpr int SHORT_LIST_COLUMNS = 2;
constexpr int MARK_COLUMNS = 6;
constexpr QSize SHORT_BOX(20, 20);
constexpr QSize MARK_BOX(30, 30);
constexpr int GAP = 6;

QColor colourOf(ToothState state) {
    if (state == ToothState::Finished) return {0, 192, 0};
    return state == ToothState::Open ? QColor(192, 0, 0) : QColor(192, 192, 0);
}

/// Shows the service's picture or, where the file is missing, its code.
void fill(ServiceBadge* badge, const HighlightedService& entry, const QSize& size) {
    badge->setService(entry.service, entry.description, statusText(entry.state));
    const auto picture = [file = entry.picture](const QSize& room, qreal ratio) {
        return loadPicture(file, room, ratio);
    };
    if (badge->setDrawing(size - QSize(6, 6), picture)) return;
    badge->clearDrawing();
    badge->setText(entry.service);
}

/// Room that is kept while nothing stands in it, so that the teeth stand still when the first service comes.
void keepRoom(QWidget* widget) {
    QSizePolicy policy = widget->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    widget->setSizePolicy(policy);
}

QGridLayout* gridOf(int gap) {
    auto* grid = new QGridLayout;
    grid->setContentsMargins({});
    grid->setSpacing(gap);
    return grid;
}

} // namespace

EvidencePanel::EvidencePanel(QWidget* parent)
    : QWidget(parent) {
    const ChartComposition::Options places;
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
    for (int place = 0; place < ChartComposition::GLANCE_PLACES; ++place)
        marks_.append(box(arrayName("imSaltaAllOcchio", place), MARK_BOX));
    layOut();
}

ServiceBadge* EvidencePanel::box(const QString& name, const QSize& size) {
    auto* badge = named(new ServiceBadge(this), name);
    badge->setAlignment(size.isEmpty() ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignCenter);
    // A text of the short list belongs to the mark beside it, where the keyboard stops.
    if (size.isEmpty()) {
        badge->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    } else {
        badge->setFixedSize(size);
        badge->setFocusPolicy(Qt::TabFocus);
    }
    keepRoom(badge);
    connect(badge, &ServiceBadge::clicked, this, &EvidencePanel::serviceClicked);
    return badge;
}

void EvidencePanel::layOut() {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(GAP);
    layout->addLayout(layOutStrip());
    layOutShortList();
    layout->addWidget(shortListArea_);
    marksArea_ = named(new QWidget(this), QStringLiteral("pbSaltaAllOcchio"));
    QGridLayout* marks = gridOf(GAP);
    marksArea_->setLayout(marks);
    for (int place = 0; place < marks_.size(); ++place)
        marks->addWidget(marks_[place], place / MARK_COLUMNS, place % MARK_COLUMNS);
    marks->setColumnStretch(MARK_COLUMNS, 1);
    layout->addWidget(marksArea_);
    layout->addStretch();
    // As wide as the strip, whatever the other texts are.
    setFixedWidth(STRIP_COLUMNS * (STRIP_BOX.width() + GAP) - GAP);
}

QLayout* EvidencePanel::layOutStrip() {
    QGridLayout* strip = gridOf(GAP);
    for (int place = 0; place < strip_.size(); ++place) {
        keepRoom(borders_[place]);
        auto* inside = new QVBoxLayout(borders_[place]);
        inside->setContentsMargins({});
        inside->addWidget(strip_[place]);
        strip->addWidget(borders_[place], place / STRIP_COLUMNS, place % STRIP_COLUMNS);
    }
    return strip;
}

/// In two columns: below each other the entries would make the plan higher than a small screen.
void EvidencePanel::layOutShortList() {
    shortListArea_ =
        named(platform::form::titledArea(QStringLiteral("In Evidenza"), this), QStringLiteral("pbEvidenziaInBreve"));
    QGridLayout* list = gridOf(2);
    list->setContentsMargins(4, 2, 4, 4);
    shortListArea_->setLayout(list);
    for (int place = 0; place < shortList_.size(); ++place) {
        const int column = 2 * (place % SHORT_LIST_COLUMNS);
        list->addWidget(shortList_[place], place / SHORT_LIST_COLUMNS, column);
        list->addWidget(shortTexts_[place], place / SHORT_LIST_COLUMNS, column + 1);
        list->setColumnStretch(column + 1, 1);
    }
}

void EvidencePanel::setComposition(const ChartComposition& composition) {
    for (int place = 0; place < strip_.size(); ++place)
        showInStrip(place, composition.strip().value(place));
    showShortList(composition);
    for (int place = 0; place < marks_.size(); ++place) {
        const HighlightedService& entry = composition.atAGlance()[static_cast<std::size_t>(place)];
        if (entry.service.isEmpty())
            marks_[place]->free();
        else
            fill(marks_[place], entry, MARK_BOX);
    }
    shortListArea_->setVisible(composition.options().showShortList);
    marksArea_->setVisible(composition.options().showAtAGlance);
}

void EvidencePanel::showInStrip(int place, const HighlightedService& entry) {
    QFrame* border = borders_[place];
    border->setVisible(!entry.service.isEmpty());
    if (entry.service.isEmpty()) return strip_[place]->free();
    fill(strip_[place], entry, STRIP_BOX);
    // The colours of the borders are their own, not those of the marks: red is work going on, not work to begin.
    QPalette palette = border->palette();
    palette.setColor(QPalette::WindowText, colourOf(entry.state));
    if (palette != border->palette()) border->setPalette(palette);
}

void EvidencePanel::showShortList(const ChartComposition& composition) {
    for (int place = 0; place < shortList_.size(); ++place) {
        if (place >= composition.shortList().size()) {
            shortList_[place]->free();
            shortTexts_[place]->free();
            continue;
        }
        const HighlightedService& entry = composition.shortList()[place];
        shortList_[place]->setService(entry.service, entry.description, statusText(entry.state));
        const auto mark = [state = entry.state](const QSize& size, qreal ratio) {
            return statusMark(state, size, ratio);
        };
        shortList_[place]->setDrawing(SHORT_BOX - QSize(4, 4), mark);
        shortTexts_[place]->setService(entry.service, entry.description, QString());
        shortTexts_[place]->setText(entry.shortText);
    }
}
