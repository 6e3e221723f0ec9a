#ifndef BenchQtSolver_H
#define BenchQtSolver_H

#include <QObject>
#include <QString>

/// The twenty values of `Bench::ValuesLevel` as properties of a QObject. Properties are known to the compiler, so this
/// level stands here a second time.
class QtSolver : public QObject
{
    Q_OBJECT
    Q_PROPERTY(double density MEMBER density)
    Q_PROPERTY(double viscosity MEMBER viscosity)
    Q_PROPERTY(double temperature MEMBER temperature)
    Q_PROPERTY(int iterations MEMBER iterations)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(bool steady MEMBER steady)
    Q_PROPERTY(double pressure MEMBER pressure)
    Q_PROPERTY(double relaxation MEMBER relaxation)
    Q_PROPERTY(QString scheme MEMBER scheme)
    Q_PROPERTY(int layers MEMBER layers)
    Q_PROPERTY(double growth MEMBER growth)
    Q_PROPERTY(double intensity READ Intensity WRITE SetIntensity)
    Q_PROPERTY(double velocity MEMBER velocity)
    Q_PROPERTY(double angleOfAttack MEMBER angleOfAttack)
    Q_PROPERTY(bool compressible MEMBER compressible)
    Q_PROPERTY(double molarMass MEMBER molarMass)
    Q_PROPERTY(QString report MEMBER report)
    Q_PROPERTY(double heatCapacity MEMBER heatCapacity)
    Q_PROPERTY(double conductivity MEMBER conductivity)
    Q_PROPERTY(int outputInterval MEMBER outputInterval)

public:
    double Intensity() const { return m_intensity; }
    void SetIntensity(double iValue) { m_intensity = iValue; }

private:
    double density = 1.225;
    double viscosity = 1.8e-5;
    double temperature = 288.15;
    int iterations = 500;
    QString title = QStringLiteral("Main stream");
    bool steady = true;
    double pressure = 101325;
    double relaxation = 0.7;
    QString scheme = QStringLiteral("upwind");
    int layers = 12;
    double growth = 1.2;
    double m_intensity = 0.05;
    double velocity = 68;
    double angleOfAttack = 2.5;
    bool compressible = false;
    double molarMass = 0.02896;
    QString report = QStringLiteral("coefficients");
    double heatCapacity = 1004.7;
    double conductivity = 0.0257;
    int outputInterval = 250;
};

#endif
