#pragma once

#include "chart/ToothList.h"
#include "chart/modDenti.h"

#include <QList>
#include <QString>
#include <array>

class clsGraphical;

/// One row of a plan, as its grid shows it.
struct RigoGrafico {
    ToothList teeth;
    QString servizio;
    QString descrizione;
    QString inizio;
    QString fine;

    bool isFinished() const { return !inizio.isEmpty() && !fine.isEmpty(); }
    bool isOpen() const { return !inizio.isEmpty() && fine.isEmpty(); }
};

/// Picture of a service over a tooth; the offset inside the tooth's box is in twips, 15 to a pixel.
struct StratoDente {
    QString servizio; ///< Empty when the layer is free.
    QString immagine;
    qint16 left = 0;
    qint16 top = 0;

    bool operator==(const StratoDente& other) const = default;
};

/// State of the worst or most urgent row of a tooth; the letter is what its tag begins with.
enum class StatoDente : char16_t { Nessuno = 0, Finito = u'C', Aperto = u'A', DaIniziare = u'U' };

struct DenteComposto {
    static constexpr int STRATI = 3;

    QString situazione; ///< The tooth's entry "index:situation:text"; empty for a plain tooth.
    QString testo;      ///< Its text, shown as tooltip.
    QString immagine;   ///< Picture of the tooth itself; empty when there is none on disk.
    std::array<StratoDente, STRATI> strati;
    StatoDente stato = StatoDente::Nessuno;
    QString servizioStato;
    QString immagineStato; ///< Empty for the module's own mark in the colour of the state.

    bool operator==(const DenteComposto& other) const = default;
    QString statusTag() const; ///< The letter of the state and its service; empty without a state.
};

/// A service that stands beside the chart.
struct ServizioEvidenziato {
    QString servizio; ///< Empty when the place is free.
    QString descrizione;
    QString immagine;
    QString breve; ///< Short text of the catalogue, in the short list only.
    StatoDente stato = StatoDente::Nessuno;

    bool operator==(const ServizioEvidenziato& other) const = default;
};

/// What the tooth chart shows for the rows of one plan: up to three service pictures and one status mark per tooth, the
/// strip of services in evidence, the short list and the marks seen at a glance. Pictures come from Graphical.xml,
/// short texts from the service catalogue. Pure calculation; a chart widget shows the result. An error of a look-up
/// passes through; `phase` then tells how far the composition got.
class ComposizioneDenti {
public:
    static constexpr int POSTI_ALL_OCCHIO = 12;

    struct Options {
        bool evidenziaBreve = false;
        bool saltaAllOcchio = false;
        bool peggiorStatusDente = false;
        int stripPlaces = 10;
        int shortListPlaces = 8;
    };

    explicit ComposizioneDenti(const clsGraphical& graphics);
    ComposizioneDenti(const clsGraphical& graphics, const Options& options);

    /// Plain teeth, then the entries of the plan's `SituazioneOrale`, joined by ";".
    void composeTeeth(const QString& situazioneOrale);
    /// One entry "index:situation:text", as the user sets it; no situation and no text give the plain tooth back.
    void composeTooth(int indice, const QString& entry);
    void composeServices(const QList<RigoGrafico>& righi); ///< Layers, strip, short list and marks at a glance.
    void composeMarks(const QList<RigoGrafico>& righi);    ///< Status marks.

    /// The entries of all teeth that have one, in index order, as the plan stores them.
    QString SituazioneOrale() const;

    const DenteComposto& tooth(int indice) const { return teeth_[static_cast<std::size_t>(indice)]; }
    const QList<ServizioEvidenziato>& strip() const { return strip_; }
    const QList<ServizioEvidenziato>& shortList() const { return shortList_; }
    const std::array<ServizioEvidenziato, POSTI_ALL_OCCHIO>& atAGlance() const { return atAGlance_; }
    const Options& options() const { return options_; }
    const QString& phase() const { return phase_; } ///< "step 1" to "step 5.d", for the message of an unexpected error.

private:
    void setTooth(int indice, const QString& entry);
    void clearServices();
    void addLayers(const RigoGrafico& rigo);
    void addToStrip(const RigoGrafico& rigo);
    void addToShortList(const RigoGrafico& rigo, QString& seen);
    void addAtAGlance(const RigoGrafico& rigo, QString& seen);
    void mark(DenteComposto& tooth, const RigoGrafico& rigo) const;
    DenteComposto* toothNamed(const QString& dente);
    QString plainPicture(int indice) const;

    const clsGraphical& graphics_;
    Options options_;
    std::array<DenteComposto, NUMERO_DENTI> teeth_;
    QList<ServizioEvidenziato> strip_;
    QList<ServizioEvidenziato> shortList_;
    std::array<ServizioEvidenziato, POSTI_ALL_OCCHIO> atAGlance_;
    QString phase_;
};
