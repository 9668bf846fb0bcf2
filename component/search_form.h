#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "outside/plindor/util_formulario.h"
#include "runtime/screen/desktop.h"
#include "runtime/screen/form.h"

namespace korvantes {

/// A screen that begins with an agent: what the settlement entry and the settlement search share.
///
/// Its text boxes are the array Text1 of the derived class, the agent's code and name first. Enter
/// moves through them as Tab does; a non-empty Tag marks the Enter that closed a message box, which
/// must not move the focus.
class SearchForm : public screen::Form {
 public:
  void Form_KeyUp(int& keyCode, int shift) override;

 protected:
  static constexpr int kCodigo = 0, kNombre = 1;

  using Cajas = screen::ControlArray<screen::TextBox>;
  /// @param cajas Text1 of the derived class; kept, but not used before wireBoxes
  /// @param fechas indexes of its date fields
  SearchForm(std::string name, const Cajas& cajas, std::vector<int> fechas);

  /// Connects the events of the boxes.
  void wireBoxes();
  /// First step of Form_Load: makes oUtil, on the connection of MyBd, with its colours.
  void creaUtil();

  bool esFecha(int index) const;
  virtual void Text1_LostFocus(int index) = 0;
  /// Key F1: looks an agent up by name.
  virtual void buscaPorNombre() = 0;

  struct ListaAgentes {
    const char* origen;
    const char* orden;
    const char* tituloCodigo;
    const char* tituloNombre;
    const char* titulo;
    long anchoCodigo, anchoNombre;  ///< twips
  };
  /// The agent that the user chooses in the search dialog; empty if the user cancels.
  struct Elegido {
    std::int32_t codigo;
    std::string nombre;
  };
  std::optional<Elegido> eligeAgente(const ListaAgentes& lista) const;

  /// The code in a text of digits; empty for any other text, or if it does not fit a Long.
  static std::optional<std::int32_t> codigoDe(std::string_view texto);
  /// Forgets the agent found before: nIdAgente and the name.
  virtual void olvidaAgente();
  /// Says that Text1(0) holds no valid code, forgets the agent, and gives the focus to the box.
  void avisaCodigoNoValido(std::string_view titulo = screen::Desktop::kDefaultTitle);

  /// Shows a message; the Enter that closes it does not move the focus.
  void avisa(const std::string& texto, int estilo = screen::style::Exclamation,
             std::string_view titulo = screen::Desktop::kDefaultTitle);
  /// The same, and gives the focus to the box it is about.
  void avisaEn(screen::TextBox& caja, const std::string& texto,
               int estilo = screen::style::Exclamation,
               std::string_view titulo = screen::Desktop::kDefaultTitle);
  /// Asks under the form's title, with No as default. True for Yes.
  bool pregunta(const std::string& texto, int icono = screen::style::Exclamation) const;

  std::unique_ptr<plindor::UtilFormulario> oUtil;
  std::int32_t nIdAgente = 0;  ///< found by the last agent lookup, 0 for none
  std::string sTituloForm;

 private:
  void Text1_GotFocus(int index);
  void Text1_KeyPress(int index, int& character);

  const Cajas& cajas_;
  std::vector<int> fechas_;
};

}  // namespace korvantes
