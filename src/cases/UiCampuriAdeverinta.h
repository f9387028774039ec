#pragma once

#include <array>

class QFormLayout;
class QLineEdit;
class QWidget;
class UiDataOptionala;

// The rows of a certificate's number (a box `numeNr` as long as Adeverinte.NrAdev allows) and of
// its three dates (issued, handed in, expires: dtpData_0 to dtpData_2), added to `formular`. The
// dates start empty and show today once ticked.
QLineEdit* CampuriAdeverinta(QWidget* parinte, QFormLayout* formular, const char* numeNr,
                             std::array<UiDataOptionala*, 3>& date);
