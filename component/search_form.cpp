#include "component/search_form.h"

#include <algorithm>
#include <charconv>

#include "component/mdoKORVANTES.h"
#include "runtime/ado/characters.h"
#include "runtime/screen/conversions.h"
#include "runtime/screen/user_input.h"

namespace korvantes {

SearchForm::SearchForm(std::string name, const Cajas& cajas, std::vector<int> fechas)
    : Form(std::move(name)), cajas_(cajas), fechas_(std::move(fechas)) {}

void SearchForm::wireBoxes() {
  for (const auto& [number, box] : cajas_.all()) {
    const int index = number;
    box->GotFocus = [this, index] { Text1_GotFocus(index); };
    box->LostFocus = [this, index] { Text1_LostFocus(index); };
    box->KeyPress = [this, index](int& character) { Text1_KeyPress(index, character); };
  }
}

void SearchForm::creaUtil() {
  oUtil = std::make_unique<plindor::UtilFormulario>();
  oUtil->Conexion(mdoKORVANTES::ConexionRetenida());
  oUtil->ColorFoco = 65535;
  oUtil->ColorNormal = 16777215;
}

void SearchForm::Form_KeyUp(int& keyCode, int /*shift*/) {
  switch (keyCode) {
    case screen::key::Enter:
      keyCode = 0;
      if (Tag().empty()) screen::SendKeys("\t");
      Tag = "";
      break;
    case screen::key::Escape:
      Unload();
      break;
    case screen::key::F1:
      Tag = "e";
      buscaPorNombre();
      break;
    default:
      Tag = "";
      screen::DoEvents();
  }
}

bool SearchForm::esFecha(int index) const {
  return std::ranges::find(fechas_, index) != fechas_.end();
}

void SearchForm::Text1_GotFocus(int index) {
  screen::TextBox& box = cajas_(index);
  if (esFecha(index)) {
    std::string digits = box.Text();
    std::erase(digits, '/');
    box.Text = digits;
  }
  oUtil->AlRecibirFoco(box, "");
}

void SearchForm::Text1_KeyPress(int index, int& character) {
  if (index == kCodigo)
    oUtil->FiltraTecla(cajas_(index), character, false);
  else if (esFecha(index))
    oUtil->FiltraTecla(cajas_(index), character, true);
}

std::optional<SearchForm::Elegido> SearchForm::eligeAgente(const ListaAgentes& lista) const {
  const std::string fila =
      oUtil->BuscaEnLista(lista.origen, lista.orden, lista.tituloCodigo, lista.tituloNombre,
                          lista.titulo, lista.anchoCodigo, lista.anchoNombre, 0);
  if (fila.size() <= 2) return {};
  return Elegido{screen::CLng(plindor::elementoDe(fila, 1)), plindor::elementoDe(fila, 2)};
}

std::optional<std::int32_t> SearchForm::codigoDe(std::string_view texto) {
  std::int32_t codigo = 0;
  const char* end = texto.data() + texto.size();
  if (!ado::allDigits(texto)) return {};
  const auto [read, error] = std::from_chars(texto.data(), end, codigo);
  if (error != std::errc{} || read != end) return {};
  return codigo;
}

void SearchForm::olvidaAgente() {
  nIdAgente = 0;
  cajas_(kNombre).Text = "";
}

void SearchForm::avisaCodigoNoValido(std::string_view titulo) {
  olvidaAgente();
  avisaEn(cajas_(kCodigo), "El código de agente no es válido", screen::style::Exclamation, titulo);
}

void SearchForm::avisa(const std::string& texto, int estilo, std::string_view titulo) {
  Tag = "e";
  screen::MsgBox(texto, estilo, titulo);
}

void SearchForm::avisaEn(screen::TextBox& caja, const std::string& texto, int estilo,
                         std::string_view titulo) {
  avisa(texto, estilo, titulo);
  caja.SetFocus();
}

bool SearchForm::pregunta(const std::string& texto, int icono) const {
  return screen::MsgBox(texto, icono | screen::style::YesNo | screen::style::DefaultSecond,
                        sTituloForm) == screen::Answer::Yes;
}

}  // namespace korvantes
