#include "sample/people.h"

#include <string>
#include <vector>

#include "sample/rows.h"

namespace korvantes::sample {
namespace {

// clang-format off
const SampleAgent kAgents[] = {
    {1, "García Íñiguez, Begoña", "51234907S", "C/ Bravo Murillo, 118, 3.º B", "28020", "Madrid", "28", 34, "915 550 112", "600 114 207", "bgarcia@agentes-muestra.es", 7500, 1},
    {2, "Muñoz Peña, José Ángel", "22987416C", "Avda. de la Constitución, 7", "46009", "València", "46", 34, "963 550 148", "600 231 984", "jamunoz@agentes-muestra.es", 5000, 2},
    {3, "Comercial Núñez e Hijos, S.L.", "B83412759", "Pol. Ind. La Grela, nave 14", "15008", "A Coruña", "15", 34, "981 550 163", "600 310 556", "nunez@agentes-muestra.es", 6000, 4},
    {4, "O'Shea D'Ors, Lucía", "44120358X", "Rúa do Príncipe, 22", "36202", "Vigo", "36", 34, "986 550 119", "600 472 018", "loshea@agentes-muestra.es", 4125, 3},
    {5, "Puigdollers i Güell, Núria", "37665021Z", "Carrer d'Enric Granados, 61", "08008", "Barcelona", "08", 34, "935 550 177", "600 508 733", "npuigdollers@agentes-muestra.es", 5500, std::nullopt},
    {6, "Hernández Ruiz, Ramón \"el Chato\"", "06543218V", "Plaza Mayor, 3", "05001", "Ávila", "05", 34, "920 550 104", "600 619 470", "", 3000, 7},
    {7, "Representaciones del Cantábrico, S.A.", "A39027610", "C/ Castelar, 45", "39004", "Santander", "39", 34, "942 550 126", "", "pedidos@cantabrico-muestra.es", 6500, 4},
    {8, "Quintana Déniz, Yeray", "42871963D", "C/ León y Castillo, 210", "35005", "Las Palmas de Gran Canaria", "35", 34, "928 550 181", "600 735 262", "yquintana@agentes-muestra.es", 5000, 5},
    {9, "Lefèvre, Amélie", "X4821937X", "12, rue des Frères Lumière", "64100", "Bayonne", "99", 33, "+33 5 59 00 01 12", "+33 6 00 00 14 58", "a.lefevre@agentes-muestra.es", 4000, 6},
    {10, "Schäfer, Jürgen", "Y1730624A", "Hauptstraße 9", "79098", "Freiburg", "99", 49, "+49 761 000114", "", "j.schaefer@agentes-muestra.es", 4000, 8},
    {11, "Zuñiga Arregui, Iñaki", "71402593J", "Paseo de Zorrilla, 30", "47006", "Valladolid", "47", 34, "983 550 155", "600 902 341", "izuniga@agentes-muestra.es", 5000, 1},
    {12, "Ordóñez Llull, Àngels", "33518804F", "C/ Sant Miquel, 19", "07002", "Palma", "07", 34, "", "600 958 026", "aordonez@agentes-muestra.es", 5000, 2},
};

const SampleCustomer kCustomers[] = {
    {1, 43001, "Ferretería La Llave, S.L.", "Madrid", 1},
    {2, 43002, "Suministros Industriales Peñalara, S.L.", "Collado Villalba", 1},
    {3, 43003, "Cerrajería Hnos. Ibáñez, C.B.", "Getafe", 1},
    {4, 43004, "Bricolaje Vallecas, S.L.", "Madrid", 1},
    {5, 43005, "Construcciones y Reformas Alcarria, S.A.", "Guadalajara", 1},
    {6, 43006, "Saneamientos Río Tajo, S.L.", "Toledo", 1},
    {7, 43007, "Almacenes Buendía, S.A.", "Cuenca", 1},
    {8, 43008, "Ferretería \"El Tornillo de Oro\"", "Alcalá de Henares", 1},
    {9, 43009, "Carpintería Metálica Móstoles, S.L.", "Móstoles", 1},
    {10, 43010, "Instalaciones Eléctricas Sagra, S.L.", "Illescas", 1},
    {11, 43011, "Materiales Sierra Norte, S.L.", "Colmenar Viejo", 1},
    {12, 43012, "Talleres Muñoyerro, S.L.", "Ávila", 6},
    {13, 43013, "Cooperativa Agrícola del Adaja, S.Coop.", "Arévalo", 6},
    {14, 43014, "Ferreteria L'Horta, S.L.", "Torrent", 2},
    {15, 43015, "Subministraments Turia, S.L.", "Quart de Poblet", 2},
    {16, 43016, "Azulejos y Sanitarios Benicarló, S.A.", "Benicarló", 2},
    {17, 43017, "Náutica Dénia, S.L.", "Dénia", 2},
    {18, 43018, "Herrajes del Mediterráneo, S.L.", "Elche/Elx", 2},
    {19, 43019, "Jardinería Huerta Nueva, S.L.", "Murcia", 2},
    {20, 43020, "Ferretería O Parafuso, S.L.", "A Coruña", 3},
    {21, 43021, "Efectos Navales Rías Altas, S.A.", "Ferrol", 3},
    {22, 43022, "Almacenes Compostela, S.L.", "Santiago de Compostela", 3},
    {23, 43023, "Maderas Terra Chá, S.L.", "Vilalba", 3},
    {24, 43024, "Construcciones Orballo, S.L.", "Lugo", 3},
    {25, 43025, "Ferretería Casa Noia", "Noia", 4},
    {26, 43026, "Conserveras Unidas da Ría, S.A.", "Vigo", 4},
    {27, 43027, "Suministros O'Grove, S.L.", "O Grove", 4},
    {28, 43028, "Bodegas Viña Meín, S.L.", "Leiro", 4},
    {29, 43029, "Ferreteria Gràcia, S.L.", "Barcelona", 5},
    {30, 43030, "Instal·lacions Vallès, S.A.", "Sabadell", 5},
    {31, 43031, "Fusteria Ca l'Avi, S.C.P.", "Vic", 5},
    {32, 43032, "Materials Empordà, S.L.", "Figueres", 5},
    {33, 43033, "Talleres Besaya, S.L.", "Torrelavega", 7},
    {34, 43034, "Ferretería Pas y Miera, S.L.", "Solares", 7},
    {35, 43035, "Astilleros de Pedreña, S.A.", "Pedreña", 7},
    {36, 43036, "Ferretería Vegueta, S.L.", "Las Palmas de Gran Canaria", 8},
    {37, 43037, "Suministros Hoteleros Maspalomas, S.A.", "San Bartolomé de Tirajana", 8},
    {38, 43038, "Quincaillerie Larralde, S.A.R.L.", "Saint-Jean-de-Luz", 9},
    {39, 43039, "Eisenwaren Müller GmbH", "Freiburg", 10},
    {40, 43040, "Reformas Pisuerga, S.L.", "Valladolid", 1},
};
// clang-format on

}  // namespace

std::span<const SampleAgent> sampleAgents() {
  return kAgents;
}
std::span<const SampleCustomer> sampleCustomers() {
  return kCustomers;
}

void loadPeople(ado::Connection& connection) {
  std::vector<Row> agents;
  for (const SampleAgent& it : kAgents)
    agents.push_back({it.id, it.name, it.taxNumber, it.street, it.postCode, it.town, it.province,
                      it.country, it.telephone, it.mobile, it.mail, ado::Variant(),
                      ado::Decimal(it.commission, 3), orNull(it.regime)});
  insertRows(connection, "Age",
             "AGE_ID, AGE_NOM, AGE_NIF, AGE_DIR, AGE_CP, AGE_POB, AGE_PRO, AGE_PAI, AGE_TEL, "
             "AGE_MOV, AGE_EMA, AGE_Fax, AGE_COM, AGE_REG",
             agents);

  std::vector<Row> customers;
  for (const SampleCustomer& it : kCustomers) customers.push_back({it.id, it.code, it.name});
  insertRows(connection, "Cli", "Cli_Id, Cli_Cod, Cli_Nom", customers);
}

}  // namespace korvantes::sample
