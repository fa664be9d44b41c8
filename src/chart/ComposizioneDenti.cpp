#include "chart/ComposizioneDenti.h"

#include "catalogues/modServizi.h"
#include "chart/clsGraphical.h"
#include "platform/Files.h"

namespace {

constexpr QChar ENTRIES = u';';
constexpr QChar PARTS = u':';

StatoDente stateOf(const RigoGrafico& rigo) {
    if (rigo.isFinished()) return StatoDente::Finito;
    return rigo.isOpen() ? StatoDente::Aperto : StatoDente::DaIniziare;
}

QString colourOf(StatoDente stato) {
    switch (stato) {
    case StatoDente::Finito:
        return QStringLiteral("GREEN");
    case StatoDente::Aperto:
        return QStringLiteral("YELLOW");
    case StatoDente::DaIniziare:
        return QStringLiteral("RED");
    case StatoDente::Nessuno:
        break;
    }
    return {};
}

bool firstTime(const QString& servizio, QString& seen) {
    const QString key = QStringLiteral(";%1;").arg(servizio);
    if (seen.contains(key)) return false;
    seen += key;
    return true;
}

} // namespace

QString DenteComposto::statusTag() const {
    return stato == StatoDente::Nessuno ? QString() : QChar(static_cast<char16_t>(stato)) + servizioStato;
}

ComposizioneDenti::ComposizioneDenti(const clsGraphical& graphics)
    : ComposizioneDenti(graphics, Options()) {}

ComposizioneDenti::ComposizioneDenti(const clsGraphical& graphics, const Options& options)
    : graphics_(graphics)
    , options_(options) {
    clearServices();
}

DenteComposto* ComposizioneDenti::toothNamed(const QString& dente) {
    const int indice = IndiceDaDente(dente);
    return indice < 0 ? nullptr : &teeth_[static_cast<std::size_t>(indice)];
}

QString ComposizioneDenti::plainPicture(int indice) const {
    QString image;
    const bool found = graphics_.SituazioneDente(DenteDaIndice(indice), QString(), image);
    return found && platform::files::exists(image) ? image : QString();
}

void ComposizioneDenti::composeTeeth(const QString& situazioneOrale) {
    for (int indice = 0; indice < NUMERO_DENTI; ++indice)
        setTooth(indice, QString());
    const QStringList entries = situazioneOrale.split(ENTRIES, Qt::SkipEmptyParts);
    for (const QString& entry : entries) {
        bool number = false;
        const int indice = entry.section(PARTS, 0, 0).toInt(&number);
        if (number && indice >= 0 && indice < NUMERO_DENTI) setTooth(indice, entry);
    }
}

void ComposizioneDenti::composeTooth(int indice, const QString& entry) {
    const bool plain = entry.section(PARTS, 1, 1).toInt() < 1 && entry.section(PARTS, 2).isEmpty();
    setTooth(indice, plain ? QString() : entry);
}

void ComposizioneDenti::setTooth(int indice, const QString& entry) {
    DenteComposto& tooth = teeth_[static_cast<std::size_t>(indice)];
    const QString situazione = entry.section(PARTS, 1, 1);
    tooth.situazione = entry;
    tooth.testo = entry.section(PARTS, 2); // a text with ":" in it, from elsewhere, stays whole
    tooth.immagine = plainPicture(indice);
    QString image;
    if (situazione.isEmpty() || !graphics_.SituazioneDente(DenteDaIndice(indice), situazione, image)) return;
    if (platform::files::exists(image)) tooth.immagine = image;
}

QString ComposizioneDenti::SituazioneOrale() const {
    QStringList entries;
    for (const DenteComposto& tooth : teeth_)
        if (!tooth.situazione.isEmpty()) entries.append(tooth.situazione);
    return entries.join(ENTRIES);
}

void ComposizioneDenti::clearServices() {
    phase_ = QStringLiteral("step 1");
    for (DenteComposto& tooth : teeth_)
        tooth.strati.fill({});
    phase_ = QStringLiteral("step 2");
    strip_.clear();
    phase_ = QStringLiteral("step 3");
    if (options_.evidenziaBreve) shortList_.clear();
    phase_ = QStringLiteral("step 4");
    if (options_.saltaAllOcchio) atAGlance_.fill({});
}

void ComposizioneDenti::composeServices(const QList<RigoGrafico>& righi) {
    clearServices();
    phase_ = QStringLiteral("step 5");
    QString seenShort;
    QString seenAtAGlance;
    for (const RigoGrafico& rigo : righi) {
        addLayers(rigo);
        addToStrip(rigo);
        if (options_.evidenziaBreve) addToShortList(rigo, seenShort);
        if (options_.saltaAllOcchio) addAtAGlance(rigo, seenAtAGlance);
    }
}

void ComposizioneDenti::addLayers(const RigoGrafico& rigo) {
    phase_ = QStringLiteral("step 5.a");
    for (const QString& dente : rigo.teeth.entries()) {
        DenteComposto* tooth = toothNamed(dente);
        if (tooth == nullptr) continue;
        StratoDente layer;
        if (!graphics_.ImmagineServizio(dente, rigo.servizio, layer.left, layer.top, layer.immagine)) continue;
        if (!platform::files::exists(layer.immagine)) continue;
        layer.servizio = rigo.servizio;
        // A fourth service on a tooth has no layer left and is dropped without a word: more would hide the tooth.
        for (StratoDente& place : tooth->strati) {
            if (!place.servizio.isEmpty()) continue;
            place = layer;
            break;
        }
    }
}

void ComposizioneDenti::addToStrip(const RigoGrafico& rigo) {
    phase_ = QStringLiteral("step 5.b");
    ServizioEvidenziato entry{rigo.servizio, rigo.descrizione, QString(), QString(), stateOf(rigo)};
    if (!graphics_.ImmagineInEvidenza(rigo.servizio, entry.immagine)) return;
    if (strip_.size() < options_.stripPlaces) strip_.append(entry);
}

void ComposizioneDenti::addToShortList(const RigoGrafico& rigo, QString& seen) {
    phase_ = QStringLiteral("step 5.c");
    ServizioEvidenziato entry{rigo.servizio, rigo.descrizione, QString(), QString(), stateOf(rigo)};
    if (!ServizioInEvidenza(rigo.servizio, entry.breve) || !firstTime(rigo.servizio, seen)) return;
    if (shortList_.size() < options_.shortListPlaces) shortList_.append(entry);
}

void ComposizioneDenti::addAtAGlance(const RigoGrafico& rigo, QString& seen) {
    phase_ = QStringLiteral("step 5.d");
    if (!firstTime(rigo.servizio, seen)) return;
    ServizioEvidenziato entry{rigo.servizio, rigo.descrizione, QString(), QString(), stateOf(rigo)};
    qint16 place = 0;
    if (!graphics_.ImmagineAllOcchio(rigo.servizio, place, entry.immagine)) return;
    // Two services with the same place overwrite each other, and the last one stays: the practice chose the places.
    atAGlance_[static_cast<std::size_t>(place)] = entry;
}

void ComposizioneDenti::composeMarks(const QList<RigoGrafico>& righi) {
    for (DenteComposto& tooth : teeth_) {
        tooth.stato = StatoDente::Nessuno;
        tooth.servizioStato.clear();
        tooth.immagineStato.clear();
    }
    for (const RigoGrafico& rigo : righi) {
        for (const QString& dente : rigo.teeth.entries())
            if (DenteComposto* tooth = toothNamed(dente)) mark(*tooth, rigo);
    }
    for (DenteComposto& tooth : teeth_) {
        QString image;
        if (tooth.stato == StatoDente::Nessuno) continue;
        const bool found = graphics_.ServizioConStatus(tooth.servizioStato, colourOf(tooth.stato), image);
        if (found && platform::files::exists(image)) tooth.immagineStato = image;
    }
}

void ComposizioneDenti::mark(DenteComposto& tooth, const RigoGrafico& rigo) const {
    const StatoDente stato = stateOf(rigo);
    const bool open = tooth.stato == StatoDente::Aperto;
    bool takes = false;
    switch (stato) {
    case StatoDente::Finito:
        takes = tooth.stato == StatoDente::Nessuno;
        break;
    case StatoDente::Aperto: // The first open row keeps the tooth, but takes it from a row not yet started.
        takes = !open;
        break;
    case StatoDente::DaIniziare: // With the worst state asked for, the order of the rows counts; without it open ones
                                 // win.
        takes = options_.peggiorStatusDente || !open;
        break;
    case StatoDente::Nessuno:
        break;
    }
    if (!takes) return;
    tooth.stato = stato;
    tooth.servizioStato = rigo.servizio;
}
