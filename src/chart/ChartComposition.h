#pragma once

#include "chart/ToothList.h"
#include "chart/ToothSituation.h"
#include "chart/modDenti.h"

#include <QHash>
#include <QList>
#include <QString>
#include <array>

class clsGraphical;

/// One row of a plan, as its grid shows it.
struct ChartRow {
    ToothList teeth;
    QString service;
    QString description;
    QString start;
    QString end;

    bool isFinished() const { return !start.isEmpty() && !end.isEmpty(); }
    bool isOpen() const { return !start.isEmpty() && end.isEmpty(); }
};

/// Picture of a service over a tooth; the offset inside the tooth's box is in twips, 15 to a pixel.
struct ToothLayer {
    QString service; ///< Empty when the layer is free.
    QString picture;
    qint16 left = 0;
    qint16 top = 0;

    bool operator==(const ToothLayer& other) const = default;
};

/// State of the worst or most urgent row of a tooth; the letter is what its tag begins with.
enum class ToothState : char16_t { None = 0, Finished = u'C', Open = u'A', ToStart = u'U' };

struct ComposedTooth {
    static constexpr int LAYERS = 3;

    QString situation; ///< The tooth's entry "index:situation:text"; empty for a plain tooth.
    QString text;      ///< Its text, shown as tooltip.
    QString picture;   ///< Picture of the tooth itself; empty when there is none on disk.
    std::array<ToothLayer, LAYERS> layers;
    ToothState state = ToothState::None;
    QString stateService;
    QString statePicture; ///< Empty for the module's own mark in the colour of the state.

    bool operator==(const ComposedTooth& other) const = default;
    QString statusTag() const; ///< The letter of the state and its service; empty without a state.
};

/// A service that stands beside the chart.
struct HighlightedService {
    QString service; ///< Empty when the place is free.
    QString description;
    QString picture;
    QString shortText; ///< Short text of the catalogue, in the short list only.
    ToothState state = ToothState::None;

    bool operator==(const HighlightedService& other) const = default;
};

/// What the tooth chart shows for the rows of one plan: up to three service pictures and one status mark per tooth, the
/// strip of services in evidence, the short list and the marks seen at a glance. Pictures come from Graphical.xml,
/// short texts from the service catalogue. Pure calculation; a chart widget shows the result. An error of a look-up
/// passes through; `phase` then tells how far the composition got.
class ChartComposition {
public:
    static constexpr int GLANCE_PLACES = 12;

    struct Options {
        bool showShortList = false;
        bool showAtAGlance = false;
        bool worstStateWins = false;
        int stripPlaces = 10;
        int shortListPlaces = 8;
    };

    explicit ChartComposition(const clsGraphical& graphics);
    ChartComposition(const clsGraphical& graphics, const Options& options);

    /// Plain teeth, then the entries of the plan's `mouthSituation`, joined by ";".
    void composeTeeth(const QString& mouthSituation);
    /// As the user sets it; no situation and no text give the plain tooth back.
    void composeTooth(const ToothSituation& situation);
    void composeServices(const QList<ChartRow>& rows); ///< Layers, strip, short list and marks at a glance.
    void composeMarks(const QList<ChartRow>& rows);    ///< Status marks.

    /// The entries of all teeth that have one, in index order, as the plan stores them.
    QString mouthSituation() const;
    ToothSituation situation(int index) const; ///< A plain one for a tooth without an entry.

    const ComposedTooth& tooth(int index) const { return teeth_[static_cast<std::size_t>(index)]; }
    const QList<HighlightedService>& strip() const { return strip_; }
    const QList<HighlightedService>& shortList() const { return shortList_; }
    const std::array<HighlightedService, GLANCE_PLACES>& atAGlance() const { return atAGlance_; }
    const Options& options() const { return options_; }
    const QString& phase() const { return phase_; } ///< "step 1" to "step 5.d", for the message of an unexpected error.

private:
    void clearTooth(int index);
    void setTooth(const ToothSituation& situation);
    void clearServices();
    void addLayers(const ChartRow& row);
    void addToStrip(const ChartRow& row, QHash<QString, QString>& pictures);
    void addToShortList(const ChartRow& row, QString& seen);
    void addAtAGlance(const ChartRow& row, QString& seen);
    void mark(ComposedTooth& tooth, const ChartRow& row) const;
    ComposedTooth* toothNamed(const QString& tooth);
    QString plainPicture(int index) const;

    const clsGraphical& graphics_;
    Options options_;
    std::array<ComposedTooth, TOOTH_COUNT> teeth_;
    QList<HighlightedService> strip_;
    QList<HighlightedService> shortList_;
    std::array<HighlightedService, GLANCE_PLACES> atAGlance_;
    QString phase_;
};
