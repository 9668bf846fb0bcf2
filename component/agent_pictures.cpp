// Stores and loads the picture of an agent. The desktop reads and writes pictures only as files, so
// both ways use a temporary one.
#include <optional>
#include <stdexcept>

#include "component/mdoKORVANTES.h"
#include "component/private_folder.h"
#include "runtime/ado/stream.h"
#include "runtime/screen/desktop.h"

namespace korvantes::mdoKORVANTES {

namespace {

constexpr const char* kParaGuardar = "select * from AGE where AGE_ID= ";
constexpr const char* kParaCargar = "select AGE_IMG from AGE where AGE_ID= ";
constexpr const char* kSalto = "\r\n";
constexpr long kSinRegistro = 3021;

void muestra(const std::optional<screen::MessageBox>& aviso) {
  if (aviso) screen::MsgBox(aviso->text, aviso->style, aviso->title);
}

screen::MessageBox avisoDe(const std::string& texto) {
  return {texto, screen::style::Plain, std::string(screen::Desktop::kDefaultTitle)};
}

/// A failure's message without the path of the temporary file, which means nothing to the user: "No
/// se puede escribir el fichero de la imagen: el disco está lleno".
std::string sinRuta(std::string texto, const std::string& ruta) {
  const auto lugar = texto.find(ruta);
  return lugar == std::string::npos ? texto : texto.replace(lugar, ruta.size(), "de la imagen");
}

/// Calls the step with the path of a temporary file, and removes the file afterwards.
template <class Paso>
auto conFicheroDePaso(Paso paso) {
  const ado::TemporaryFolder carpeta = makePrivateFolder();
  const std::string fichero = carpeta.file("temp.bmp");
  try {
    return paso(fichero);
  } catch (const std::exception& error) {
    throw std::runtime_error(sinRuta(error.what(), fichero));
  }
}

/// Stores the picture. Returns a message for the user if it was not stored.
std::optional<screen::MessageBox> guarda(std::int32_t nId, const screen::Picture& imagen,
                                         const std::string& fichero) {
  auto& escritorio = screen::Desktop::current();
  escritorio.savePicture(imagen, fichero);
  if (escritorio.loadPicture(fichero).empty())
    return screen::MessageBox{"El fichero no es valido", screen::style::Plain, "VRAL"};

  ado::Recordset rs = Conexion().OpenForUpdate(kParaGuardar + std::to_string(nId));
  if (rs.isEOF() || rs.isBOF())
    throw ado::Error(kSinRegistro, "No hay ningún agente con el código " + std::to_string(nId));
  ado::Stream stream;
  stream.LoadFromFile(fichero);
  rs.Fields("AGE_IMG").Value(stream.Take());
  rs.Update();
  rs.Close();
  return std::nullopt;
}

/// The stored picture of the agent; the empty picture if there is none.
screen::Picture carga(std::int32_t nId) {
  const ado::Recordset rs = Conexion().Execute(kParaCargar + std::to_string(nId));
  if (rs.isEOF() || rs.isBOF() || rs.Fields(0).Value().isNull()) return {};
  const ado::Bytes& bytes = rs.Fields("AGE_IMG").Value().bytes();
  // A column emptied by another program holds no bytes instead of Null.
  if (bytes.empty()) return {};

  return conFicheroDePaso([&](const std::string& fichero) {
    ado::Stream stream;
    stream.Write(bytes);
    stream.SaveToFile(fichero);
    return screen::Desktop::current().loadPicture(fichero);
  });
}

}  // namespace

// The temporary file is removed before any message is shown.
void msGuardaImagen(const std::int32_t& nId, const screen::Image& imagen) {
  std::optional<screen::MessageBox> aviso;
  try {
    aviso = conFicheroDePaso(
        [&](const std::string& fichero) { return guarda(nId, imagen.Picture(), fichero); });
  } catch (const std::exception& error) {
    aviso = avisoDe(std::string("Error : ") + kSalto + error.what());
  }
  muestra(aviso);
}

void msCargaImagen(const std::int32_t& nId, screen::Image& imagen) {
  std::optional<screen::MessageBox> aviso;
  imagen.Picture = screen::Picture();
  try {
    imagen.Picture = carga(nId);
  } catch (const std::exception& error) {
    aviso = avisoDe(error.what());
  }
  muestra(aviso);
}

}  // namespace korvantes::mdoKORVANTES
