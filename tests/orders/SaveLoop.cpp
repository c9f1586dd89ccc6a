#include "Oturum.h"
#include "Schema.h"
#include "SiparisStore.h"

#include <cstdio>
#include <QCoreApplication>

using namespace kuyum;

/// save_loop DATABASE ORDER: saves the order over and over, with the number of
/// the save in the header's note and in the note of every line, and prints
/// that number once the save is done, until it is killed.
int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    Oturum oturum;
    oturum.Veritabani = openCompany(QCoreApplication::arguments().at(1));
    const SiparisStore store(oturum);
    Siparis siparis = store.SiparisBul(QCoreApplication::arguments().at(2).toInt()).value();
    for (int save = siparis.Aciklama.toInt() + 1;; ++save) {
        siparis.Aciklama = QString::number(save);
        for (SiparisSatiri &row : siparis.satirlar)
            row.aciklama = siparis.Aciklama;
        LoadedRows loaded = store.oku(siparis.Sipnum);
        if (!store.save(siparis, loaded))
            return 1;
        std::printf("%d\n", save);
        std::fflush(stdout);
    }
}
