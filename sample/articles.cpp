#include "sample/articles.h"

namespace korvantes::sample {
namespace {

// Screws and the like are sold by the piece at fractions of a cent: their lines have four decimals.
constexpr SampleArticle kArticles[] = {
    {"Tornillo cabeza avellanada 4×40 cincado", 385, 900, 7500},
    {"Tuerca hexagonal M8 inox", 627, 600, 7500},
    {"Arandela plana M10", 213, 999, 7500},
    {"Taco nailon 8 mm", 459, 800, 7500},
    {"Bisagra latón 80 mm", 31'500, 40, 6000},
    {"Cerradura embutir 50 mm níquel", 184'000, 12, 6000},
    {"Cilindro seguridad 30×30", 226'500, 15, 6000},
    {"Candado arco largo 40 mm", 98'500, 20, 6000},
    {"Taladro percutor 750 W", 895'000, 4, 4125},
    {"Amoladora 125 mm 900 W", 649'900, 4, 4125},
    {"Juego de brocas widia (10 piezas)", 149'500, 10, 5000},
    {"Disco de corte 115 mm", 9'950, 100, 5000},
    {"Cinta métrica 5 m", 42'500, 30, 5000},
    {"Nivel aluminio 60 cm", 118'000, 8, 5000},
    {"Alicate universal 180 mm", 127'500, 12, 5000},
    {"Llave inglesa 10\"", 163'500, 10, 5000},
    {"Grifo monomando lavabo", 392'000, 6, 5500},
    {"Latiguillo 1/2\" 40 cm", 23'750, 60, 5500},
    {"Sifón botella 1 1/2\"", 48'900, 24, 5500},
    {"Tubo PVC Ø 50 (3 m)", 57'250, 40, 3000},
    {"Manguera jardín 25 m", 214'900, 8, 3000},
    {"Cable H07V-K 2,5 mm² (rollo 100 m)", 486'000, 6, 3000},
    {"Bombilla LED E27 9 W", 19'900, 80, 4000},
    {"Regleta 4 tomas con interruptor", 74'500, 20, 4000},
    {"Silicona neutra blanca 280 ml", 33'250, 48, 6500},
    {"Espuma poliuretano 750 ml", 51'950, 36, 6500},
    {"Pintura plástica mate 15 l", 398'500, 5, 6500},
    {"Rodillo antigota 22 cm", 46'500, 20, 6500},
    {"Guante piel flor t. 9", 27'900, 60, 5000},
    {"Gafas de protección incoloras", 35'400, 30, 5000},
    {"Carretilla obra 90 l", 459'000, 3, 3000},
    {"Saco mortero rápido 25 kg", 68'750, 40, 2500},
};

}  // namespace

std::span<const SampleArticle> sampleArticles() {
  return kArticles;
}

}  // namespace korvantes::sample
