#include "chart/ChartComposition.h"

#include "catalogues/modServizi.h"
#include "chart/clsGraphical.h"
#include "platform/Files.h"

#include <algorithm>

namespace {

ToothState stateOf(const ChartRow& row) {
    if (row.isFinished()) return ToothState::Finished;
    return row.isOpen() ? ToothState::Open : ToothState::ToStart;
}

QString colourOf(ToothState state) {
    switch (state) {
    case ToothState::Finished:
        return QStringLiteral("GREEN");
    case ToothState::Open:
        return QStringLiteral("YELLOW");
    case ToothState::ToStart:
        return QStringLiteral("RED");
    case ToothState::None:
        break;
    }
    return {};
}

bool firstTime(const QString& service, QString& seen) {
    const QString key = QStringLiteral(";%1;").arg(service);
    if (seen.contains(key)) return false;
    seen += key;
    return true;
}

} // namespace

QString ComposedTooth::statusTag() const {
    return state == ToothState::None ? QString() : QChar(static_cast<char16_t>(state)) + stateService;
}

ChartComposition::ChartComposition(const clsGraphical& graphics)
    : ChartComposition(graphics, Options()) {}

ChartComposition::ChartComposition(const clsGraphical& graphics, const Options& options)
    : graphics_(graphics)
    , options_(options) {
    clearServices();
}

ComposedTooth* ChartComposition::toothNamed(const QString& name) {
    const int index = IndiceDaDente(name);
    return index < 0 ? nullptr : &teeth_[static_cast<std::size_t>(index)];
}

QString ChartComposition::plainPicture(int index) const {
    QString image;
    const bool found = graphics_.SituazioneDente(DenteDaIndice(index), QString(), image);
    return found && platform::files::exists(image) ? image : QString();
}

void ChartComposition::composeTeeth(const QString& mouthSituation) {
    for (int index = 0; index < TOOTH_COUNT; ++index)
        clearTooth(index);
    for (const ToothSituation& situation : readMouth(mouthSituation))
        setTooth(situation);
}

void ChartComposition::composeTooth(const ToothSituation& situation) {
    if (situation.isPlain())
        clearTooth(situation.tooth);
    else
        setTooth(situation);
}

void ChartComposition::clearTooth(int index) {
    ComposedTooth& tooth = teeth_[static_cast<std::size_t>(index)];
    tooth.situation.clear();
    tooth.text.clear();
    tooth.picture = plainPicture(index);
}

void ChartComposition::setTooth(const ToothSituation& situation) {
    clearTooth(situation.tooth);
    ComposedTooth& tooth = teeth_[static_cast<std::size_t>(situation.tooth)];
    tooth.situation = situation.entry();
    tooth.text = situation.text;
    QString image;
    const QString name = DenteDaIndice(situation.tooth);
    if (situation.situation.isEmpty() || !graphics_.SituazioneDente(name, situation.situation, image)) return;
    if (platform::files::exists(image)) tooth.picture = image;
}

QString ChartComposition::mouthSituation() const {
    QList<ToothSituation> entries;
    for (int index = 0; index < TOOTH_COUNT; ++index) {
        if (!tooth(index).situation.isEmpty()) entries << situation(index);
    }
    return writeMouth(entries);
}

ToothSituation ChartComposition::situation(int index) const {
    return ToothSituation::fromEntry(tooth(index).situation).value_or(ToothSituation{index, QString(), QString()});
}

void ChartComposition::clearServices() {
    phase_ = QStringLiteral("step 1");
    for (ComposedTooth& tooth : teeth_)
        tooth.layers.fill({});
    phase_ = QStringLiteral("step 2");
    strip_.clear();
    phase_ = QStringLiteral("step 3");
    if (options_.showShortList) shortList_.clear();
    phase_ = QStringLiteral("step 4");
    if (options_.showAtAGlance) atAGlance_.fill({});
}

void ChartComposition::composeServices(const QList<ChartRow>& rows) {
    clearServices();
    phase_ = QStringLiteral("step 5");
    QString seenShort;
    QString seenAtAGlance;
    QHash<QString, QString> pictures;
    for (const ChartRow& row : rows) {
        addLayers(row);
        addToStrip(row, pictures);
        if (options_.showShortList) addToShortList(row, seenShort);
        if (options_.showAtAGlance) addAtAGlance(row, seenAtAGlance);
    }
}

void ChartComposition::addLayers(const ChartRow& row) {
    phase_ = QStringLiteral("step 5.a");
    for (const QString& name : row.teeth.entries()) {
        ComposedTooth* tooth = toothNamed(name);
        if (tooth == nullptr) continue;
        const auto place = std::find_if(tooth->layers.begin(), tooth->layers.end(),
                                        [](const ToothLayer& each) { return each.service.isEmpty(); });
        // A fourth service on a tooth has no layer left and is dropped without a word: more would hide the tooth.
        if (place == tooth->layers.end()) continue;
        ToothLayer layer;
        if (!graphics_.ImmagineServizio(name, row.service, layer.left, layer.top, layer.picture)) continue;
        if (!platform::files::exists(layer.picture)) continue;
        layer.service = row.service;
        *place = layer;
    }
}

// A plan has many rows of few services: each is looked up once in a pass.
void ChartComposition::addToStrip(const ChartRow& row, QHash<QString, QString>& pictures) {
    phase_ = QStringLiteral("step 5.b");
    if (strip_.size() >= options_.stripPlaces) return;
    auto picture = pictures.find(row.service);
    if (picture == pictures.end()) {
        picture = pictures.insert(row.service, QString());
        graphics_.ImmagineInEvidenza(row.service, *picture);
    }
    if (!picture->isEmpty()) strip_.append({row.service, row.description, *picture, QString(), stateOf(row)});
}

void ChartComposition::addToShortList(const ChartRow& row, QString& seen) {
    phase_ = QStringLiteral("step 5.c");
    if (shortList_.size() >= options_.shortListPlaces) return;
    HighlightedService entry{row.service, row.description, QString(), QString(), stateOf(row)};
    if (ServizioInEvidenza(row.service, entry.shortText) && firstTime(row.service, seen)) shortList_.append(entry);
}

void ChartComposition::addAtAGlance(const ChartRow& row, QString& seen) {
    phase_ = QStringLiteral("step 5.d");
    if (!firstTime(row.service, seen)) return;
    HighlightedService entry{row.service, row.description, QString(), QString(), stateOf(row)};
    qint16 place = 0;
    if (!graphics_.ImmagineAllOcchio(row.service, place, entry.picture)) return;
    // Two services with the same place overwrite each other, and the last one stays: the practice chose the places.
    atAGlance_[static_cast<std::size_t>(place)] = entry;
}

void ChartComposition::composeMarks(const QList<ChartRow>& rows) {
    for (ComposedTooth& tooth : teeth_) {
        tooth.state = ToothState::None;
        tooth.stateService.clear();
        tooth.statePicture.clear();
    }
    for (const ChartRow& row : rows) {
        for (const QString& name : row.teeth.entries())
            if (ComposedTooth* tooth = toothNamed(name)) mark(*tooth, row);
    }
    for (ComposedTooth& tooth : teeth_) {
        QString image;
        if (tooth.state == ToothState::None) continue;
        const bool found = graphics_.ServizioConStatus(tooth.stateService, colourOf(tooth.state), image);
        if (found && platform::files::exists(image)) tooth.statePicture = image;
    }
}

void ChartComposition::mark(ComposedTooth& tooth, const ChartRow& row) const {
    const ToothState state = stateOf(row);
    const bool open = tooth.state == ToothState::Open;
    bool takes = false;
    switch (state) {
    case ToothState::Finished:
        takes = tooth.state == ToothState::None;
        break;
    case ToothState::Open: // The first open row keeps the tooth, but takes it from a row not yet started.
        takes = !open;
        break;
    case ToothState::ToStart: // With the worst state asked for, the order of the rows counts; without it open ones
                              // win.
        takes = options_.worstStateWins || !open;
        break;
    case ToothState::None:
        break;
    }
    if (!takes) return;
    tooth.state = state;
    tooth.stateService = row.service;
}
