#include "chart/frmSceltaDente.h"

#include "chart/ToothList.h"
#include "chart/ToothPicture.h"
#include "chart/clsGraphical.h"
#include "host/context.h"
#include "host/modForm.h"
#include "platform/Files.h"
#include "platform/FormLayout.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>
#include <map>
#include <utility>

using platform::form::arrayName;
using platform::form::named;

namespace {

constexpr int DIGITS_LAST_MS = 1500;
constexpr int MIDDLE_COLUMN = 9; ///< Between the halves of the mouth; column 0 and 18 hold the arrows.
constexpr int LAST_COLUMN = 18;

bool onRightOfPatient(int quadrant) {
    return quadrant == 1 || quadrant == 4 || quadrant == 5 || quadrant == 8;
}

/// Upper permanent, upper deciduous, lower deciduous, lower permanent; a separating line lies in row 2.
int rowOf(int quadrant) {
    switch (quadrant) {
    case 1:
    case 2:
        return 0;
    case 5:
    case 6:
        return 1;
    case 7:
    case 8:
        return 3;
    default:
        return 4;
    }
}

int columnOf(int quadrant, int position) {
    return onRightOfPatient(quadrant) ? MIDDLE_COLUMN - position : MIDDLE_COLUMN + position;
}

QString plainPicture(int index) {
    QString image;
    if (oGraphical == nullptr || !oGraphical->SituazioneDente(DenteDaIndice(index), QString(), image)) return {};
    return platform::files::exists(image) ? image : QString();
}

} // namespace

frmSceltaDente::frmSceltaDente(QWidget* parent)
    : QDialog(parent) {
    setObjectName(QStringLiteral("frmSceltaDente"));
    setWindowTitle(TitoloForm(QStringLiteral("Selezione Dente")));
    auto* layout = new QVBoxLayout(this);
    auto* panel = new QWidget(this);
    panel->setObjectName(QStringLiteral("pbDenti"));
    layout->addWidget(panel);
    buildTeeth(panel);
    buildButtons();
    timer1_ = named(new QTimer(this), QStringLiteral("Timer1"));
    timer1_->setSingleShot(true);
    timer1_->setInterval(DIGITS_LAST_MS);
    connect(timer1_, &QTimer::timeout, this, [this] { digits_.clear(); });
    cbPiglia_->setFocus();
    InizializzaForm(this);
}

void frmSceltaDente::buildTeeth(QWidget* panel) {
    auto* grid = new QGridLayout(panel);
    grid->setHorizontalSpacing(3);
    grid->setVerticalSpacing(8);
    grid->setColumnMinimumWidth(MIDDLE_COLUMN, 14);
    auto* line = new QFrame(panel);
    line->setFrameShape(QFrame::HLine);
    line->setFrameShadow(QFrame::Sunken);
    grid->addWidget(line, 2, 1, 1, LAST_COLUMN - 1);
    for (int index = 0; index < TOOTH_COUNT; ++index) {
        const int quadrant = toothQuadrant(index);
        addTooth(grid, index, rowOf(quadrant), columnOf(quadrant, toothPosition(index)));
    }
    for (int quadrant = 1; quadrant <= 8; ++quadrant)
        addArrow(grid, quadrant, rowOf(quadrant), onRightOfPatient(quadrant) ? 0 : LAST_COLUMN);
    orderByEye();
}

/// Tab goes along the rows of the mouth from left to right, not in the order of the numbers.
void frmSceltaDente::orderByEye() {
    std::map<std::pair<int, int>, QWidget*> places;
    for (int index = 0; index < TOOTH_COUNT; ++index) {
        const int quadrant = toothQuadrant(index);
        places[{rowOf(quadrant), columnOf(quadrant, toothPosition(index))}] = cbTooth_[static_cast<std::size_t>(index)];
    }
    for (int quadrant = 1; quadrant <= 8; ++quadrant)
        places[{rowOf(quadrant), onRightOfPatient(quadrant) ? 0 : LAST_COLUMN}] =
            arrow_[static_cast<std::size_t>(quadrant - 1)];
    QWidget* previous = nullptr;
    for (const auto& [place, widget] : places) {
        if (previous) setTabOrder(previous, widget);
        previous = widget;
    }
}

void frmSceltaDente::addTooth(QGridLayout* grid, int index, int row, int column) {
    const auto place = static_cast<std::size_t>(index);
    const QString tooth = DenteDaIndice(index);
    auto* label = named(new QLabel(tooth, this), arrayName("laDente", index));
    auto* picture = named(new ToothPicture(index, this), arrayName("pbTooth", index));
    auto* box = named(new QCheckBox(this), arrayName("cbTooth", index));
    label->setAlignment(Qt::AlignCenter);
    label->setCursor(Qt::PointingHandCursor);
    label->installEventFilter(this);
    picture->setFixedSize(picture->sizeHint());
    picture->setPicture(plainPicture(index));
    box->setAccessibleName(QStringLiteral("Dente %1").arg(tooth));
    laDente_[place] = label;
    pbTooth_[place] = picture;
    cbTooth_[place] = box;
    connect(picture, &ToothPicture::clicked, box, &QCheckBox::toggle);
    connect(box, &QCheckBox::toggled, this, [this, index] { colourLabel(index); });
    colourLabel(index);

    // The number stays on the side of the roots and the box on that of the bite, as on paper.
    auto* cell = new QVBoxLayout;
    cell->setSpacing(2);
    const bool upper = isUpper(index);
    const std::array<QWidget*, 3> order{upper ? static_cast<QWidget*>(label) : box, picture,
                                        upper ? static_cast<QWidget*>(box) : label};
    for (QWidget* widget : order)
        cell->addWidget(widget, 0, Qt::AlignHCenter);
    grid->addLayout(cell, row, column, upper ? Qt::AlignBottom : Qt::AlignTop);
}

void frmSceltaDente::addArrow(QGridLayout* grid, int quadrant, int row, int column) {
    auto* button = named(new QToolButton(this), arrayName("arrow", quadrant - 1));
    button->setArrowType(onRightOfPatient(quadrant) ? Qt::RightArrow : Qt::LeftArrow);
    button->setToolTip(QStringLiteral("Seleziona il quadrante %1 e conferma").arg(quadrant));
    button->setAccessibleName(button->toolTip());
    button->setFixedSize(26, 44);
    arrow_[static_cast<std::size_t>(quadrant - 1)] = button;
    connect(button, &QToolButton::clicked, this, [this, quadrant] { chooseQuadrant(quadrant); });
    grid->addWidget(button, row, column, Qt::AlignCenter);
}

void frmSceltaDente::buildButtons() {
    using platform::form::button;
    laOUTB_ = named(new QLabel(this), QStringLiteral("laOUTB"));
    laOUTB_->hide();
    cbNessuno_ = button(QStringLiteral("cbNessuno"), QStringLiteral("Nessun dente"), this);
    cbPiglia_ = button(QStringLiteral("cbPiglia"), QStringLiteral("Seleziona!"), this);
    cbChiudi_ = button(QStringLiteral("cbChiudi"), QStringLiteral("Annulla"), this);
    cbPiglia_->setDefault(true);
    connect(cbNessuno_, &QPushButton::clicked, this, [this] {
        clearAll();
        finish(QStringLiteral("OK"));
    });
    connect(cbPiglia_, &QPushButton::clicked, this, [this] { finish(QStringLiteral("OK")); });
    connect(cbChiudi_, &QPushButton::clicked, this, &frmSceltaDente::reject);
    auto* row = new QHBoxLayout;
    auto* hint = new QLabel(QStringLiteral("Da tastiera: due cifre per dente, ad esempio 1 6 per il dente 1.6"), this);
    hint->setForegroundRole(QPalette::PlaceholderText);
    row->addWidget(hint);
    row->addStretch();
    for (QPushButton* each : {cbNessuno_, cbPiglia_, cbChiudi_}) {
        each->setMinimumWidth(each->sizeHint().width() + 24);
        row->addWidget(each);
    }
    static_cast<QVBoxLayout*>(layout())->addLayout(row);
}

void frmSceltaDente::setSelection(const QString& selection) {
    const ToothList teeth = ToothList::fromSelection(selection);
    for (const QString& tooth : teeth.entries()) {
        const int index = IndiceDaDente(tooth);
        if (index >= 0) cbTooth_[static_cast<std::size_t>(index)]->setChecked(true);
    }
}

QStringList frmSceltaDente::teeth() const {
    QStringList teeth;
    for (std::size_t place = 0; place < cbTooth_.size(); ++place)
        if (cbTooth_[place]->isChecked()) teeth.append(laDente_[place]->text());
    return teeth;
}

bool frmSceltaDente::confirmed() const {
    return laOUTB_->text() == QLatin1String("OK");
}

void frmSceltaDente::colourLabel(int index) {
    const auto place = static_cast<std::size_t>(index);
    const bool set = cbTooth_[place]->isChecked();
    QPalette palette = laDente_[place]->palette();
    palette.setColor(QPalette::WindowText, set ? QColor(255, 0, 0) : QColor(0, 0, 0));
    laDente_[place]->setPalette(palette);
    QFont font = laDente_[place]->font();
    font.setBold(set);
    laDente_[place]->setFont(font);
    pbTooth_[place]->setMarked(set);
}

void frmSceltaDente::chooseQuadrant(int quadrant) {
    // Confirms at once and forgets earlier choices, on purpose: a whole quadrant is one click.
    for (int index = 0; index < TOOTH_COUNT; ++index)
        cbTooth_[static_cast<std::size_t>(index)]->setChecked(toothQuadrant(index) == quadrant);
    finish(QStringLiteral("OK"));
}

void frmSceltaDente::clearAll() {
    for (QCheckBox* box : cbTooth_)
        box->setChecked(false);
}

void frmSceltaDente::finish(const QString& result) {
    laOUTB_->setText(result);
    done(confirmed() ? Accepted : Rejected);
}

void frmSceltaDente::reject() {
    finish(QStringLiteral("CANCEL"));
}

bool frmSceltaDente::takeDigit(const QString& text) {
    if (text.size() != 1 || text[0] < u'0' || text[0] > u'9') return false;
    digits_ += text;
    timer1_->start();
    if (digits_.size() < 2) return true;
    const int index = IndiceDaDente(digits_.left(1) + u'.' + digits_.mid(1));
    if (index >= 0) cbTooth_[static_cast<std::size_t>(index)]->toggle();
    digits_.clear();
    return true;
}

void frmSceltaDente::keyPressEvent(QKeyEvent* event) {
    if (!takeDigit(event->text())) QDialog::keyPressEvent(event);
}

bool frmSceltaDente::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonRelease) {
        for (std::size_t place = 0; place < laDente_.size(); ++place)
            if (laDente_[place] == watched) cbTooth_[place]->toggle();
    }
    return QDialog::eventFilter(watched, event);
}
