#include "predictive/athaladas.h"

#include "tables/szamtan.h"

bool NapiLepesben(double a, double b, double hossz) {
    if (a < b) return a <= hossz && hossz < b;
    return (a <= hossz && hossz < 360) || (hossz >= 0 && hossz < b);
}

double NapiResz(double a, double b, double hossz) {
    const double ut = b <= a ? b + korIvmasodperc - a : b - a;
    const double megtett = hossz <= a ? hossz + korIvmasodperc - a : hossz - a;
    return megtett / ut;
}

TNapszak napszak(double resz) {
    const double s = resz * napMasodperc;
    const int ora = egesz(s / 3600);
    const int perc = egesz((s - ora * 3600.0) / 60);
    return {ora, perc, egesz(s - perc * 60.0 - ora * 3600.0)};
}
