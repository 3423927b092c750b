// Files are replaced as a whole or not at all, whatever goes wrong.
#include <quorvel/ficheros.h>

#include <fstream>
#include <iterator>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <quorvel/framework/CException.h>
#include <quorvel/mundo.h>

#include "comun/ficheros.h"
#include "comun/ficheros_memoria.h"

namespace {

using namespace efv;
using namespace efv::pruebas;
using namespace std::chrono_literals;
namespace fs = std::filesystem;

const std::string kViejo = "lo que estaba", kNuevo = "lo que viene, más largo que lo anterior";
constexpr const char* kRuta = "/d/fichero";

std::string Fallo(const auto& accion)
{
    try {
        accion();
    } catch (const CFileException& error) {
        return error.what();
    }
    return "";
}

// Reads and replaces the file, as an import does; true when it says that it is done.
bool Guardar(SistemaFicheros& sistema)
{
    return Fallo([&] {
               FicheroRetenido fichero(sistema, kRuta, 0ms);
               if (fichero.Existe())
                   fichero.Leer(1000);
               fichero.Reemplazar(kNuevo);
           })
        .empty();
}

struct Disco {
    bool bExiste, bSinNombre;
};

class ConCadaLlamadaRota : public testing::TestWithParam<Disco> {
protected:
    std::unique_ptr<FicherosEnMemoria> Nuevo() const
    {
        auto disco = std::make_unique<FicherosEnMemoria>();
        disco->bSinNombre = GetParam().bSinNombre;
        if (GetParam().bExiste)
            disco->Poner(kRuta, kViejo);
        return disco;
    }
    const std::string m_antes = GetParam().bExiste ? kViejo : "-";
};

TEST_P(ConCadaLlamadaRota, QuedaLoViejoOLoNuevoYSoloLoNuevoEsExito)
{
    for (const int iError : {EIO, ENOSPC, EACCES}) {
        bool bFallado = true;
        for (std::size_t n = 0; bFallado; ++n) {
            const auto disco = Nuevo();
            FicherosConAverias averiados(*disco, n, iError);
            const bool bHecho = Guardar(averiados);
            bFallado = averiados.HaFallado();
            const std::string contenido = disco->Contenido(kRuta);
            EXPECT_TRUE(contenido == kNuevo || (!bHecho && contenido == m_antes))
                << n << ": " << bHecho << ' ' << contenido;
            EXPECT_TRUE(bFallado || bHecho);
            // Whatever is left over goes with the next time.
            EXPECT_TRUE(Guardar(*disco));
            EXPECT_EQ(disco->Contenido(kRuta), kNuevo);
            EXPECT_EQ(disco->Cuantos(), 1U);
            ASSERT_LT(n, 100U);
        }
    }
}

TEST_P(ConCadaLlamadaRota, UnCorteDeCorrienteDejaLoUnoOLoOtroEntero)
{
    bool bCortado = true;
    for (std::size_t n = 0; bCortado; ++n) {
        const auto disco = Nuevo();
        FicherosConAverias averiados(*disco, n, EIO, FicherosConAverias::Averia::muerte);
        const bool bHecho = Guardar(averiados);
        bCortado = averiados.HaFallado();
        disco->CortarCorriente();
        const std::string contenido = disco->Contenido(kRuta);
        EXPECT_TRUE(contenido == kNuevo || (!bHecho && contenido == m_antes)) << n << ": " << contenido;
        EXPECT_TRUE(Guardar(*disco));
        EXPECT_EQ(disco->Contenido(kRuta), kNuevo);
        EXPECT_EQ(disco->Cuantos(), 1U);
    }
}

INSTANTIATE_TEST_SUITE_P(Ficheros, ConCadaLlamadaRota,
                         testing::Values(Disco{true, true}, Disco{true, false}, Disco{false, true},
                                         Disco{false, false}));

TEST(Ficheros, ElDiscoLlenoYLaFaltaDePermisoDicenSuCausa)
{
    FicherosEnMemoria disco;
    disco.Poner(kRuta, kViejo);
    disco.nCapacidad = kViejo.size() + 10;
    try {
        ReemplazarFichero(disco, kRuta, kNuevo);
        ADD_FAILURE();
    } catch (const CFileException& error) {
        EXPECT_EQ(error.m_cause, CFileException::discoLleno);
        EXPECT_STREQ(error.what(), "/d/fichero: el disco está lleno");
    }
    disco.nCapacidad = 1000;
    for (const char* prohibida : {"/d", kRuta}) {
        disco.prohibidas = {prohibida};
        EXPECT_EQ(Fallo([&] { ReemplazarFichero(disco, kRuta, kNuevo); }), "/d/fichero: no hay permiso");
    }
    EXPECT_EQ(disco.Contenido(kRuta), kViejo);
    EXPECT_EQ(disco.Cuantos(), 1U);
}

TEST(Ficheros, QuienEsperaSabeAQuien)
{
    FicherosEnMemoria disco;
    disco.Poner(kRuta, kViejo);
    FicheroRetenido primero(disco, kRuta);
    EXPECT_EQ(Fallo([&] { FicheroRetenido(disco, kRuta, 30ms); }),
              "/d/fichero: lo ocupa otro programa (editor, proceso 7)");
    primero.Reemplazar(kNuevo);
    FicheroRetenido segundo(disco, kRuta, 0ms);
    EXPECT_EQ(segundo.Leer(1000), kNuevo);
}

// Of programs that know nothing of the lock.
TEST(Ficheros, LoCambiadoMientrasTantoNoSePierde)
{
    FicherosEnMemoria disco;
    disco.Poner(kRuta, kViejo);
    const std::string otro = "de otro";
    {
        FicheroRetenido fichero(disco, kRuta);
        fichero.Leer(1000);
        disco.Poner(kRuta, otro);  // another file of the same name
        EXPECT_NE(Fallo([&] { fichero.Reemplazar(kNuevo); }), "");
    }
    EXPECT_EQ(disco.Contenido(kRuta), otro);
    {
        FicheroRetenido fichero(disco, kRuta);
        fichero.Leer(1000);
        disco.Escribir(disco.Abrir(kRuta, Apertura::escritura), "mm");  // the same file
        EXPECT_NE(Fallo([&] { fichero.Reemplazar(kNuevo); }), "");
    }
    EXPECT_EQ(disco.Contenido(kRuta), otro + "m");
    {
        FicheroRetenido nuevo(disco, "/d/otro");
        disco.Poner("/d/otro", otro);
        EXPECT_NE(Fallo([&] { nuevo.Reemplazar(kNuevo); }), "");
    }
    EXPECT_EQ(disco.Contenido("/d/otro"), otro);
    EXPECT_EQ(disco.Cuantos(), 2U);
}

TEST(Ficheros, LosEnlacesSeSiguenYUnCirculoSeRechaza)
{
    FicherosEnMemoria disco;
    disco.Poner("/e/real", kViejo);
    disco.PonerEnlace("/d/a", "b");
    disco.PonerEnlace("/d/b", "/e/real");
    ReemplazarFichero(disco, "/d/a", kNuevo);
    EXPECT_EQ(disco.Contenido("/e/real"), kNuevo);
    disco.PonerEnlace("/d/x", "/d/y");
    disco.PonerEnlace("/d/y", "/d/x");
    EXPECT_NE(Fallo([&] { ReemplazarFichero(disco, "/d/x", kNuevo); }), "");
    EXPECT_EQ(disco.Cuantos(), 5U);
}

// ---------------------------------------------------------------------------------------------------
// The system's own files
// ---------------------------------------------------------------------------------------------------

std::string Contenido(const fs::path& ruta)
{
    std::ifstream fichero(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(fichero), {}};
}

mode_t Permisos(const fs::path& ruta)
{
    struct stat estado = {};
    EXPECT_EQ(::stat(ruta.c_str(), &estado), 0);
    return estado.st_mode & 07777U;
}

class FicherosDelSistema : public testing::Test {
protected:
    void Reemplazar(const fs::path& ruta) { ReemplazarFichero(m_sistema, ruta.string(), kNuevo); }
    std::size_t Cuantos() const
    {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(m_carpeta.Ruta()), {}));
    }
    SistemaFicheros& m_sistema = *MundoDelSistema().ficheros;
    CarpetaTemporal m_carpeta;
    const fs::path m_ruta = m_carpeta.Ruta() / "f";
};

TEST_F(FicherosDelSistema, LosPermisosSonLosDeAntesOLosDeLaMascara)
{
    const mode_t antes = ::umask(027);
    Reemplazar(m_ruta);
    EXPECT_EQ(Permisos(m_ruta), 0640U);
    EXPECT_EQ(::chmod(m_ruta.c_str(), 0604), 0);
    Reemplazar(m_ruta);
    ::umask(antes);
    EXPECT_EQ(Permisos(m_ruta), 0604U);
    EXPECT_EQ(Contenido(m_ruta), kNuevo);
    EXPECT_EQ(Cuantos(), 1U);
}

// Only what this system lets anybody set: owners need the superuser, attributes a disk that has them.
TEST_F(FicherosDelSistema, ElDuenoYLosAtributosQuedan)
{
    m_carpeta.Crear("f", kViejo);
    const std::string valor("un\0valor", 8);
    const bool bConAtributos = ::setxattr(m_ruta.c_str(), "user.prueba", valor.data(), valor.size(), 0) == 0;
    const bool bConDueno = ::chown(m_ruta.c_str(), 12345, 23456) == 0;
    ASSERT_EQ(::chmod(m_ruta.c_str(), 0640), 0);
    if (!bConAtributos && !bConDueno)
        GTEST_SKIP() << "neither owner nor attributes can be set here";
    Reemplazar(m_ruta);
    EXPECT_EQ(Contenido(m_ruta), kNuevo);
    EXPECT_EQ(Permisos(m_ruta), 0640U);
    if (bConAtributos) {
        std::string leido(100, '-');
        const ssize_t n = ::getxattr(m_ruta.c_str(), "user.prueba", leido.data(), leido.size());
        ASSERT_EQ(n, 8);
        EXPECT_EQ(leido.substr(0, 8), valor);
    }
    if (bConDueno) {
        struct stat estado = {};
        ASSERT_EQ(::stat(m_ruta.c_str(), &estado), 0);
        EXPECT_EQ(estado.st_uid, 12345U);
        EXPECT_EQ(estado.st_gid, 23456U);
    }
}

TEST_F(FicherosDelSistema, UnEnlaceLoSigueSiendoAunqueNoLleveANada)
{
    fs::create_symlink("destino", m_ruta);
    Reemplazar(m_ruta);
    EXPECT_TRUE(fs::is_symlink(m_ruta));
    EXPECT_EQ(Contenido(m_carpeta.Ruta() / "destino"), kNuevo);
    fs::create_symlink("no/existe", m_carpeta.Ruta() / "roto");
    EXPECT_THROW(Reemplazar(m_carpeta.Ruta() / "roto"), CFileException);
    EXPECT_TRUE(fs::is_symlink(m_carpeta.Ruta() / "roto"));
}

TEST_F(FicherosDelSistema, NiTuberiasNiCarpetasNiNombresImposibles)
{
    ASSERT_EQ(::mkfifo(m_ruta.c_str(), 0600), 0);
    EXPECT_EQ(Fallo([&] { Reemplazar(m_ruta); }), m_ruta.string() + ": no es un fichero normal");
    EXPECT_EQ(LeerFichero(m_sistema, m_ruta.string(), 10).motivo, "no es un fichero normal");
    EXPECT_EQ(Fallo([&] { Reemplazar(m_carpeta.Ruta()); }), m_carpeta.Ruta().string() + ": es una carpeta");
    EXPECT_EQ(LeerFichero(m_sistema, m_carpeta.Ruta().string(), 10).motivo, "es una carpeta");
    EXPECT_THROW(Reemplazar(std::string("a\0b", 3)), CFileException);
    EXPECT_EQ(LeerFichero(m_sistema, std::string("a\0b", 3), 10).motivo, "el nombre no es válido");
    EXPECT_THROW(Reemplazar(m_carpeta.Ruta() / std::string(256, 'n')), CFileException);
    Reemplazar(m_carpeta.Ruta() / std::string(255, 'n'));
    EXPECT_EQ(Contenido(m_carpeta.Ruta() / std::string(255, 'n')), kNuevo);
    EXPECT_EQ(Cuantos(), 2U);
}

TEST_F(FicherosDelSistema, ElLimiteDeTamanoDelProcesoEsUnError)
{
    m_carpeta.Crear("f", kViejo);
    rlimit antes{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &antes), 0);
    const rlimit corto{20, antes.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &corto), 0);
    const std::string fallo = Fallo([&] { Reemplazar(m_ruta); });
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &antes), 0);
    EXPECT_NE(fallo.find("pasa del tamaño"), std::string::npos) << fallo;
    EXPECT_EQ(Contenido(m_ruta), kViejo);
    EXPECT_EQ(Cuantos(), 1U);
}

// A file that a killed process left behind goes; one that looks alike and one at work stay.
TEST_F(FicherosDelSistema, LoAbandonadoSeBarre)
{
    m_carpeta.Crear(".efv-0123456789abcdef.tmp", "");
    m_carpeta.Crear(".efv-0123456789abcdeg.tmp", "");
    const int iOtro = m_sistema.Crear((m_carpeta.Ruta() / ".efv-1123456789abcdef.tmp").string(), 0600);
    ASSERT_GE(m_sistema.Bloquear(iOtro), 0);
    Reemplazar(m_ruta);
    m_sistema.Cerrar(iOtro);
    EXPECT_FALSE(fs::exists(m_carpeta.Ruta() / ".efv-0123456789abcdef.tmp"));
    EXPECT_EQ(Cuantos(), 3U);
}

// Each adds one to a number in a file, many times.
TEST_F(FicherosDelSistema, DosProcesosNoSePisan)
{
    constexpr int kVeces = 60;
    m_carpeta.Crear("f", "0");
    pid_t hijos[2] = {};
    for (pid_t& hijo : hijos) {
        hijo = ::fork();
        if (hijo != 0)
            continue;
        for (int i = 0; i < kVeces; ++i) {
            FicheroRetenido fichero(m_sistema, m_ruta.string());
            fichero.Reemplazar(std::to_string(std::stoi(fichero.Leer(100)) + 1));
        }
        ::_exit(0);
    }
    for (const pid_t hijo : hijos) {
        int iEstado = -1;
        ::waitpid(hijo, &iEstado, 0);
        EXPECT_EQ(iEstado, 0);
    }
    EXPECT_EQ(Contenido(m_ruta), std::to_string(2 * kVeces));
    EXPECT_EQ(Cuantos(), 1U);
}

TEST_F(FicherosDelSistema, ElCerrojoDiceElProceso)
{
    m_carpeta.Crear("f", kViejo);
    const FicheroRetenido primero(m_sistema, m_ruta.string());
    const std::string fallo = Fallo([&] { FicheroRetenido(m_sistema, m_ruta.string(), 0ms); });
    EXPECT_NE(fallo.find("proceso " + std::to_string(::getpid())), std::string::npos) << fallo;
}

TEST_F(FicherosDelSistema, LasCarpetasSeCreanYUnFicheroEnMedioLoImpide)
{
    CrearCarpetas(m_sistema, (m_carpeta.Ruta() / "a" / "b").string());
    CrearCarpetas(m_sistema, (m_carpeta.Ruta() / "a" / "b").string());
    EXPECT_TRUE(fs::is_directory(m_carpeta.Ruta() / "a" / "b"));
    m_carpeta.Crear("f", kViejo);
    EXPECT_THROW(CrearCarpetas(m_sistema, (m_ruta / "c").string()), CFileException);
}

}  // namespace
