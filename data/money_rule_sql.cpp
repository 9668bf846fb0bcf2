#include "data/money_rule_sql.h"

namespace korvantes::data::sql {

const std::string_view kNoteLineLessDiscount1 =
    "(ROUND(CAST(Lav_Importe - ROUND(CAST((Lav_Importe * Cav_Dto1 / 100) AS Money),2) as "
    "money),2)";
const std::string_view kNoteLineLessDiscount2 =
    "- ROUND(CAST(ROUND(CAST(Lav_Importe - ROUND(CAST((Lav_Importe * Cav_Dto1 / 100) AS Money),2) "
    "as money),2) * Cav_DTO2 /100 AS MONEY),2))";

const std::string_view kOrderLineLessDiscount1 =
    "(ROUND(CAST(PedLi_Importe - ROUND(CAST((PedLi_Importe * PedCa_Dto1 / 100) AS Money),2) as "
    "money),2)";
const std::string_view kOrderLineLessDiscount2 =
    "- ROUND(CAST(ROUND(CAST(PedLi_Importe - ROUND(CAST((PedLi_Importe * PedCa_Dto1 / 100) AS "
    "Money),2) as money),2) * PEDCA_DTO2 /100 AS MONEY),2))";

const std::string_view kTimesNoteCommission = "/100 * Lav_Comi ";
const std::string_view kTimesOrderCommission = "/100 * PedLi_Comi ";

const std::string_view kOpenCommission = "ISNULL(ROUND(CAST( ";
const std::string_view kCloseCommission = "AS Money),2),0)";

std::string noteLineNet() {
  std::string net(kNoteLineLessDiscount1);
  return net.append(" ").append(kNoteLineLessDiscount2).append(" ");
}

std::string noteLineCommission() {
  std::string commission(kOpenCommission);
  return commission.append(noteLineNet()).append(kTimesNoteCommission).append(kCloseCommission);
}

const std::string_view kNoteNet =
    "(SELECT (round(cast((ROUND(cast(SUM(lav_Importe) as money),2)) - "
    " (ROUND(cast((SUM(lav_Importe) * Cav_Dto1 / 100)as money),2)) - "
    " (round(cast (((((ROUND(cast(SUM(lav_Importe) as money),2)) - "
    " (ROUND(cast((SUM(lav_Importe) * Cav_Dto1 / 100)as money),2))) * Cav_Dto2 /100)) as "
    "money),2))as money),2)) ";

}  // namespace korvantes::data::sql
