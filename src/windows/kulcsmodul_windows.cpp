// The module of cryptography where Windows itself brings it.

#include <cstddef>

#include "windows/modulok.h"

// clang-format off
#include <windows.h>
#include <bcrypt.h>  // needs the types of the one above
// clang-format on

namespace {

UCHAR* bajtok(const QByteArray& adat) {
    return reinterpret_cast<UCHAR*>(const_cast<char*>(adat.constData()));
}

ULONG meret(const QByteArray& adat) {
    return static_cast<ULONG>(adat.size());
}

}  // namespace

class TBcryptKulcsModul : public QObject, public TKulcsModul {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.korvend.kulcs/1")
    Q_INTERFACES(TKulcsModul)

public:
    QByteArray kulcs(const QByteArray& jelszo, const QByteArray& so, int ismetlesek, int hossz) override {
        BCRYPT_ALG_HANDLE hmac = nullptr;
        if (BCryptOpenAlgorithmProvider(&hmac, BCRYPT_SHA256_ALGORITHM, nullptr,
                                        BCRYPT_ALG_HANDLE_HMAC_FLAG) != 0)
            return {};
        QByteArray eredmeny(hossz, '\0');
        const NTSTATUS allapot = BCryptDeriveKeyPBKDF2(
            hmac, bajtok(jelszo), meret(jelszo), bajtok(so), meret(so), static_cast<ULONGLONG>(ismetlesek),
            reinterpret_cast<UCHAR*>(eredmeny.data()), meret(eredmeny), 0);
        BCryptCloseAlgorithmProvider(hmac, 0);
        return allapot == 0 ? eredmeny : QByteArray();
    }
    bool azonos(const QByteArray& egyik, const QByteArray& masik) override {
        if (egyik.size() != masik.size()) return false;
        unsigned elteres = 0;
        for (qsizetype i = 0; i < egyik.size(); ++i)
            elteres |= static_cast<unsigned>(static_cast<unsigned char>(egyik[i] ^ masik[i]));
        return elteres == 0;
    }
};

#include "kulcsmodul_windows.moc"
