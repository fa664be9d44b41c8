#pragma once

#include <QFrame>

class QLabel;

namespace desk {

struct PatientData;

/// The band on top of the patient's desk: name, age, tax code, doctor and telephone.
class PatientHeader : public QFrame {
    Q_OBJECT

public:
    explicit PatientHeader(const QIcon& icon, QWidget* parent = nullptr);

    void tell(const PatientData& patient, const QString& doctor);
    void clear();

private:
    QLabel* addLabel(const char* name);

    QLabel* name_;
    QLabel* birth_;
    QLabel* taxCode_;
    QLabel* doctor_;
    QLabel* telephone_;
};

} // namespace desk
