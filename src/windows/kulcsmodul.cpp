// The module that links the library of cryptography.

#include <openssl/crypto.h>
#include <openssl/evp.h>

#include "windows/modulok.h"

namespace {

const unsigned char* bajtok(const QByteArray& adat) {
    return reinterpret_cast<const unsigned char*>(adat.constData());
}

}  // namespace

class TOpenSslKulcsModul : public QObject, public TKulcsModul {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.korvend.kulcs/1")
    Q_INTERFACES(TKulcsModul)

public:
    QByteArray kulcs(const QByteArray& jelszo, const QByteArray& so, int ismetlesek, int hossz) override {
        QByteArray eredmeny(hossz, Qt::Uninitialized);
        const int siker = PKCS5_PBKDF2_HMAC(jelszo.constData(), static_cast<int>(jelszo.size()), bajtok(so),
                                            static_cast<int>(so.size()), ismetlesek, EVP_sha256(), hossz,
                                            reinterpret_cast<unsigned char*>(eredmeny.data()));
        return siker == 1 ? eredmeny : QByteArray();
    }
    bool azonos(const QByteArray& egyik, const QByteArray& masik) override {
        return egyik.size() == masik.size() && CRYPTO_memcmp(egyik.constData(), masik.constData(),
                                                             static_cast<std::size_t>(egyik.size())) == 0;
    }
};

#include "kulcsmodul.moc"
