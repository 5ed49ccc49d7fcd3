// Tests of the comparison of documents: changes made to the examples, one a row, of which each is
// told right and nothing else is told.
#include <algorithm>
#include <map>
#include <optional>
#include <set>

#include "support/Diffs.h"

namespace {

namespace toolkit = as::toolkit;
using test::lineOf;
using test::summaryOf;

struct DiffRow {
  const char* example;
  const char* search;  // All of it is replaced.
  const char* replacement;
  // "KIND OLD PLACE -> NEW PLACE: OLD VALUE -> NEW VALUE", a line for each change that follows from
  // no other; then how many follow from it, and "!" when it breaks callers.
  const char* expected;
};

void PrintTo(const DiffRow& row, std::ostream* out) { *out << row.example << ": " << row.search; }

const DiffRow rows[] = {
    {"MOTPREM.cbl", "LK-REQ-COVER            PIC 9(01)", "LK-REQ-COVER            PIC 9(03)",
     "picture-widened LK-REQUEST.LK-REQ-COVER: 9(01) -> 9(03) +29 !\n"},
    {"MOTPREM.cbl", "LK-VEH-MAKE         PIC X(20)", "LK-VEH-MAKE         PIC X(15)",
     "picture-narrowed LK-REQUEST.LK-REQ-VEHICLE.LK-VEH-MAKE: X(20) -> X(15) +27 !\n"},
    {"MOTPREM.cbl", "LK-VEH-MODEL        PIC X(30)", "LK-VEH-MODEL        PIC X(29)X",
     "picture-respelled LK-REQUEST.LK-REQ-VEHICLE.LK-VEH-MODEL: X(30) -> X(29)X\n"},
    {"MOTPREM.cbl", "LK-VEH-NEW-VALUE    PIC 9(07)V99", "LK-VEH-NEW-VALUE    PIC 9(08)V9",
     "scale-changed LK-REQUEST.LK-REQ-VEHICLE.LK-VEH-NEW-VALUE: 9(07)V99 -> 9(08)V9 !\n"},
    {"MOTPREM.cbl", "LK-RES-NET              PIC S9", "LK-RES-NET              PIC 9",
     "sign-changed LK-RESULT.LK-RES-NET: signed -> none !\n"},
    {"MOTPREM.cbl", "PIC S9(07)V99 SIGN LEADING.",
     "PIC S9(07)V99\n                                    SIGN LEADING SEPARATE.",
     "sign-changed LK-REQUEST.LK-REQ-DRIVER.LK-DRV-CLAIM.LK-CLM-AMOUNT: leading -> leading "
     "separate +5 !\n"},
    {"MOTPREM.cbl", "LK-VEH-POWER-KW     PIC 9(04) COMP.", "LK-VEH-POWER-KW     PIC 9(04) COMP-3.",
     "usage-changed LK-REQUEST.LK-REQ-VEHICLE.LK-VEH-POWER-KW: comp -> comp-3 +23 !\n"},
    {"MOTPREM.cbl", "LK-VEH-POWER-KW     PIC 9(04) COMP.", "LK-VEH-POWER-KW     PIC 9(04) COMP-5.",
     "usage-changed LK-REQUEST.LK-REQ-VEHICLE.LK-VEH-POWER-KW: comp -> comp-5 !\n"},
    {"MOTPREM.cbl", "LK-REQ-SERIAL       PIC 9(08)", "LK-REQ-SERIAL       PIC X(08)",
     "category-changed LK-REQUEST.LK-REQ-POLICY-PARTS.LK-REQ-SERIAL: numeric 9(08) -> alphanumeric "
     "X(08) !\n"},
    {"MOTPREM.cbl", " JUSTIFIED RIGHT.", ".",
     "justification-changed LK-REQUEST.LK-REQ-REGION.LK-REG-POSTCODE: right -> left !\n"},
    {"MOTPREM.cbl", "PIC Z(6)9.99 BLANK WHEN ZERO.", "PIC Z(6)9.99.",
     "blank-when-zero-changed LK-PLAN.LK-PLAN-ENTRY.LK-PLAN-PRINT: yes -> no !\n"},
    {"MOTPREM.cbl", "PIC Z(6)9.99 BLANK", "PIC *(6)9.99 BLANK",
     "picture-changed LK-PLAN.LK-PLAN-ENTRY.LK-PLAN-PRINT: Z(6)9.99 -> *(6)9.99 !\n"},
    {"MOTPREM.cbl", "               10  LK-VEH-MODEL        PIC X(30).\n", "",
     "item-removed LK-REQUEST.LK-REQ-VEHICLE.LK-VEH-MODEL -> : alphanumeric X(30) ->  +25 !\n"},
    {"MOTPREM.cbl", "               10  LK-VEH-MODEL  ",
     "               10  LK-VEH-COLOUR       PIC X(03).\n               10  LK-VEH-MODEL  ",
     "item-added  -> LK-REQUEST.LK-REQ-VEHICLE.LK-VEH-COLOUR:  -> alphanumeric X(03) +26 !\n"},
    {"MOTPREM.cbl", "           66  LK-RES-TOTALS",
     "           05  LK-RES-MORE             PIC X(03).\n           66  LK-RES-TOTALS",
     "item-added  -> LK-RESULT.LK-RES-MORE:  -> alphanumeric X(03) +1 !\n"},
    {"MOTPREM.cbl", "LK-VEH-MAKE ", "LK-VEH-BRAND",
     "item-renamed LK-REQUEST.LK-REQ-VEHICLE.LK-VEH-MAKE -> "
     "LK-REQUEST.LK-REQ-VEHICLE.LK-VEH-BRAND: LK-VEH-MAKE -> LK-VEH-BRAND !\n"},
    {"MOTPREM.cbl", "LK-REQ-REGION.", "LK-REQ-PLACES.",
     "item-renamed LK-REQUEST.LK-REQ-REGION -> LK-REQUEST.LK-REQ-PLACES: LK-REQ-REGION -> "
     "LK-REQ-PLACES !\n"},
    {"MOTPREM.cbl",
     "               10  LK-VEH-MAKE         PIC X(20).\n               10  LK-VEH-MODEL        "
     "PIC X(30).\n",
     "               10  LK-VEH-MODEL        PIC X(30).\n               10  LK-VEH-MAKE         "
     "PIC X(20).\n",
     "item-reordered LK-REQUEST.LK-REQ-VEHICLE.LK-VEH-MAKE: 24 -> 54 +2 !\n"},
    {"MOTPREM.cbl",
     "           05  LK-REQ-REGION.\n               10  LK-REG-POSTCODE     PIC X(10) JUSTIFIED "
     "RIGHT.\n",
     "               10  LK-REG-POSTCODE     PIC X(10) JUSTIFIED RIGHT.\n           05  "
     "LK-REQ-REGION.\n",
     "item-regrouped LK-REQUEST.LK-REQ-REGION.LK-REG-POSTCODE -> "
     "LK-REQUEST.LK-REQ-VEHICLE.LK-REG-POSTCODE: LK-REQUEST.LK-REQ-REGION.LK-REG-POSTCODE -> "
     "LK-REQUEST.LK-REQ-VEHICLE.LK-REG-POSTCODE +3 !\n"},
    {"MOTPREM.cbl", "LK-DRV-CLAIM        OCCURS 3", "LK-DRV-CLAIM        OCCURS 5",
     "table-longer LK-REQUEST.LK-REQ-DRIVER.LK-DRV-CLAIM: 3 -> 5 +2 !\n"},
    {"MOTPREM.cbl", "LK-DRV-CLAIM        OCCURS 3", "LK-DRV-CLAIM        OCCURS 2",
     "table-shorter LK-REQUEST.LK-REQ-DRIVER.LK-DRV-CLAIM: 3 -> 2 +2 !\n"},
    {"MOTPREM.cbl", "LK-VEH-FUEL         PIC X(01).", "LK-VEH-FUEL         PIC X(01) OCCURS 2.",
     "table-made LK-REQUEST.LK-REQ-VEHICLE.LK-VEH-FUEL: 0 -> 2 +20 !\n"},
    {"MOTPREM.cbl", "LK-DRV-CLAIM        OCCURS 3 TIMES.", "LK-DRV-CLAIM.",
     "table-unmade LK-REQUEST.LK-REQ-DRIVER.LK-DRV-CLAIM: 3 -> 0 +2 !\n"},
    {"MOTPREM.cbl", "DEPENDING ON LK-REQ-DRIVER-COUNT", "DEPENDING ON LK-REG-CLASS",
     "table-depending-changed LK-REQUEST.LK-REQ-DRIVER: LK-REQUEST.LK-REQ-DRIVER-COUNT -> "
     "LK-REQUEST.LK-REQ-REGION.LK-REG-CLASS !\n"},
    {"MOTPREM.cbl", "OCCURS 1 TO 6 TIMES", "OCCURS 2 TO 6 TIMES",
     "table-minimum-changed LK-REQUEST.LK-REQ-DRIVER: 1 -> 2 !\n"},
    {"MOTPREM.cbl", "OCCURS 1 TO 6 TIMES\n               DEPENDING ON LK-REQ-DRIVER-COUNT.",
     "OCCURS 6 TIMES.",
     "table-depending-changed LK-REQUEST.LK-REQ-DRIVER: LK-REQUEST.LK-REQ-DRIVER-COUNT -> none "
     "!\n"},
    {"MOTPREM.cbl", "LK-RES-PREMIUM-TABLE REDEFINES LK-RES-PREMIUMS.", "LK-RES-PREMIUM-TABLE.",
     "redefinition-changed LK-RESULT.LK-RES-PREMIUM-TABLE: LK-RES-PREMIUMS -> none +8 !\n"},
    {"MOTPREM.cbl", "               88  LK-PAY-YEARLY       VALUE \"Y\".\n", "",
     "condition-removed LK-REQUEST.LK-REQ-PAYMENT.LK-PAY-YEARLY -> : Y ->  !\n"},
    {"MOTPREM.cbl", "               88  LK-PAY-YEARLY ",
     "               88  LK-PAY-NEVER        VALUE \"N\".\n               88  LK-PAY-YEARLY ",
     "condition-added  -> LK-REQUEST.LK-REQ-PAYMENT.LK-PAY-NEVER:  -> N\n"},
    {"MOTPREM.cbl", "88  LK-PAY-YEARLY ", "88  LK-PAY-ANNUAL ",
     "condition-renamed LK-REQUEST.LK-REQ-PAYMENT.LK-PAY-YEARLY -> "
     "LK-REQUEST.LK-REQ-PAYMENT.LK-PAY-ANNUAL: LK-PAY-YEARLY -> LK-PAY-ANNUAL !\n"},
    {"MOTPREM.cbl", "VALUE \"G\" \"L\" \"C\"", "VALUE \"G\" \"L\" \"C\" \"N\"",
     "condition-values-added LK-REQUEST.LK-REQ-VEHICLE.LK-VEH-FUEL.LK-FUEL-GAS: G, L, C -> G, L, "
     "C, N\n"},
    {"MOTPREM.cbl", "VALUE \"G\" \"L\" \"C\"", "VALUE \"G\" \"L\"",
     "condition-values-removed LK-REQUEST.LK-REQ-VEHICLE.LK-VEH-FUEL.LK-FUEL-GAS: G, L, C -> G, L "
     "!\n"},
    {"MOTPREM.cbl", "LK-START-VALID  VALUE 1 THRU 12", "LK-START-VALID  VALUE 1 THRU 11",
     "condition-values-changed LK-REQUEST.LK-REQ-START-DATE.LK-REQ-START-MM.LK-START-VALID: 1 THRU "
     "12 -> 1 THRU 11 !\n"},
    {"MOTPREM.cbl", "       01  LK-NCD-CLASS   ",
     "       WORKING-STORAGE SECTION.\n       01  LK-NCD-CLASS   ",
     "record-moved LK-NCD-CLASS: linkage section -> working storage !\n"
     "record-moved LK-DISCOUNT-PCT: linkage section -> working storage !\n"
     "record-moved LK-NET-AMOUNT: linkage section -> working storage !\n"
     "record-moved LK-TAX-AMOUNT: linkage section -> working storage !\n"
     "record-moved LK-RETURN-CODE: linkage section -> working storage !\n"},
    {"MOTPREM.cbl", "OCCURS 36 TIMES", "OCCURS 37 TIMES",
     "table-longer WS-DISCOUNT-TABLE.WS-DISCOUNT: 36 -> 37 +1\n"},
    {"MOTPREM.cbl", "PROGRAM-ID. MOTPREM.", "PROGRAM-ID. MOTPREN.",
     "program-renamed MOTPREM -> MOTPREN: MOTPREM -> MOTPREN +1 !\n"},
    {"MOTPREM.cbl", "ENTRY \"MOTPINST\"", "ENTRY \"MOTPLAN\"",
     "entry-point-renamed entry point MOTPINST -> entry point MOTPLAN: MOTPINST -> MOTPLAN !\n"},
    {"MOTPREM.cbl", "           ENTRY \"MOTPINST\" USING LK-REQUEST LK-RESULT LK-PLAN.\n", "",
     "entry-point-removed entry point MOTPINST ->  !\n"},
    {"MOTPREM.cbl", "           ENTRY \"MOTPINST\" ",
     "           ENTRY \"MOTPMORE\" USING LK-PLAN.\n           ENTRY \"MOTPINST\" ",
     "entry-point-added  -> entry point MOTPMORE\n"},
    {"MOTPREM.cbl", "USING LK-REQUEST LK-RESULT LK-PLAN", "USING LK-REQUEST LK-RESULT",
     "entry-parameter-removed entry point MOTPINST LK-PLAN -> : reference ->  !\n"},
    {"MOTPREM.cbl", "USING LK-REQUEST LK-RESULT LK-PLAN",
     "USING LK-REQUEST LK-RESULT LK-PLAN\n                  LK-NET-AMOUNT",
     "entry-parameter-added  -> entry point MOTPINST LK-NET-AMOUNT:  -> reference !\n"},
    {"MOTPREM.cbl", "USING LK-REQUEST LK-RESULT LK-PLAN", "USING LK-RESULT LK-REQUEST LK-PLAN",
     "entry-parameters-reordered entry point MOTPINST: LK-REQUEST, LK-RESULT, LK-PLAN -> "
     "LK-RESULT, LK-REQUEST, LK-PLAN !\n"},
    {"MOTPREM.cbl", "USING BY VALUE LK-NCD-CLASS", "USING BY REFERENCE LK-NCD-CLASS",
     "entry-parameter-passing-changed entry point MOTPDISC LK-NCD-CLASS: value -> reference !\n"},
    {"MOTPREM.cbl", "CALL-CONVENTION 8 IS", "CALL-CONVENTION 3 IS",
     "call-convention-changed entry point MOTPTAX: 8 -> 3 !\n"},
    {"DEPINT01.cbl", "ORGANIZATION IS INDEXED", "ORGANIZATION IS RELATIVE",
     "file-organization-changed fd ACCT-MASTER: indexed -> relative !\n"},
    {"DEPINT01.cbl", "ACCESS MODE IS DYNAMIC", "ACCESS MODE IS RANDOM",
     "file-access-changed fd ACCT-MASTER: dynamic -> random\n"},
    {"DEPINT01.cbl",
     "           05  TXH-BATCH-NO            PIC 9(06).\n           05  FILLER                  "
     "PIC X(57).",
     "           05  TXH-BATCH-NO            PIC 9(06).\n           05  TXH-OPERATOR            "
     "PIC X(07).\n           05  FILLER                  PIC X(50).",
     "item-added  -> TXN-HEADER.TXH-OPERATOR:  -> alphanumeric X(07) +1\n"
     "picture-narrowed TXN-HEADER.FILLER: X(57) -> X(50) +1\n"},
    {"DEPINT01.cbl", "           05  FILLER                  PIC X(57).\n",
     "           05  TXH-REMARK              PIC X(57).\n",
     "item-renamed TXN-HEADER.FILLER -> TXN-HEADER.TXH-REMARK: FILLER -> TXH-REMARK\n"},
    {"DEPINT01.cbl", "JOURNAL", "POSTINGS",
     "file-renamed fd JOURNAL -> fd POSTINGS: JOURNAL -> POSTINGS\n"},
    {"PAYSLIP.cbl", "SES-BUFFER              USAGE POINTER SYNC",
     "SES-BUFFER              USAGE POINTER", "sync-changed SESSION.SES-BUFFER: yes -> no +8\n"},
    {"PAYSLIP.cbl", "EMP-SORT-NAME       PIC N(10) USAGE DISPLAY",
     "EMP-SORT-NAME       PIC N(10) USAGE NATIONAL",
     "usage-changed EMPLOYEE.EMP-NAME.EMP-SORT-NAME: display -> unicode\n"},
    {"PAYSLIP.cbl", "PE-HOURS                PIC 9(03)V99", "PE-HOURS                PIC 9(04)V99",
     "picture-widened PAY-ELEMENTS.PE-HOURS: 9(03)V99 -> 9(04)V99 +20\n"},
    {"MOTPREM-java.xml", "name=\"Kfz-Prämie\"", "name=\"Tarif\"",
     "service-renamed service: Kfz-Prämie -> Tarif !\n"},
    {"MOTPREM-java.xml", "programName=\"MOTPREM\"", "programName=\"MOTPREN\"",
     "program-changed service: MOTPREM -> MOTPREN\n"},
    {"MOTPREM-java.xml",
     "    <operation name=\"taxOn\" entryPoint=\"MOTPTAX\" transactionType=\"never\">",
     "    <operation name=\"taxFor\" entryPoint=\"MOTPTAX\" transactionType=\"never\">",
     "operation-renamed taxOn -> taxFor: taxOn -> taxFor !\n"},
    {"MOTPREM-java.xml", "entryPoint=\"MOTPDISC\"", "entryPoint=\"MOTPTAX\"",
     "operation-rebound discountFor: MOTPDISC -> MOTPTAX\n"},
    {"MOTPREM-java.xml", "transactionType=\"never\"", "transactionType=\"mandatory\"",
     "transaction-changed taxOn transactionType: never -> mandatory !\n"},
    {"MOTPREM-java.xml", "exitPoints=\"2\"", "exitPoints=\"3\"",
     "exit-points-changed quote: 2 -> 3\n"},
    {"MOTPREM-java.xml", "<parameter name=\"tax\" byType=\"out\" dataType=\"int\">",
     "<parameter name=\"tax\" byType=\"io\" dataType=\"int\">",
     "direction-changed taxOn.tax: out -> io !\n"},
    {"MOTPREM-java.xml", "<parameter name=\"tax\" byType=\"out\" dataType=\"int\">",
     "<parameter name=\"tax\" byType=\"out\" dataType=\"long\">",
     "type-changed taxOn.tax: int -> long !\n"},
    {"MOTPREM-java.xml", "<parameter name=\"tax\" byType", "<parameter name=\"levy\" byType",
     "parameter-renamed taxOn.tax -> taxOn.levy: tax -> levy !\n"},
    {"MOTPREM-java.xml", "<field name=\"parts\" occurs=\"4\"", "<field name=\"parts\" occurs=\"3\"",
     "occurs-changed type Premium.parts: 4 -> 3 !\n"},
    {"MOTPREM-java.xml", "<mapping item=\"LK-RESULT.LK-RES-TAX\"/>",
     "<mapping item=\"LK-RESULT.LK-RES-NET\"/>",
     "mapping-redirected type Premium.tax: LK-RESULT.LK-RES-TAX -> LK-RESULT.LK-RES-NET\n"},
    {"MOTPREM-java.xml", "          <mapping item=\"LK-RESULT.LK-RES-TAX\"/>\n", "",
     "mapping-removed type Premium.tax: LK-RESULT.LK-RES-TAX -> \n"},
    {"MOTPREM-java.xml", "<hiddenParameter item=\"LK-REQUEST.LK-REQ-PAYMENT\" value=\"M\"/>",
     "<hiddenParameter item=\"LK-REQUEST.LK-REQ-PAYMENT\" value=\"Q\"/>",
     "hidden-value-changed instalments (hidden) LK-REQUEST.LK-REQ-PAYMENT: M -> Q\n"},
    {"MOTPREM-java.xml",
     "        <hiddenParameter item=\"LK-REQUEST.LK-REQ-PAYMENT\" value=\"M\"/>\n", "",
     "hidden-parameter-removed instalments (hidden) LK-REQUEST.LK-REQ-PAYMENT -> : M -> \n"},
    {"MOTPREM-java.xml",
     "        <parameter name=\"request\" byType=\"in\" ref=\"Quote\"/>\n        <parameter "
     "name=\"premium\" byType=\"out\" ref=\"Premium\"/>\n        <parameter name=\"returnCode\"",
     "        <parameter name=\"premium\" byType=\"out\" ref=\"Premium\"/>\n        <parameter "
     "name=\"request\" byType=\"in\" ref=\"Quote\"/>\n        <parameter name=\"returnCode\"",
     "parameter-reordered quote.request: 1 -> 2 !\n"},
    {"MOTPREM-java.xml", "<field name=\"vehicle\" ref=\"Vehicle\"/>",
     "<field name=\"vehicle\" ref=\"Driver\"/>",
     "reference-changed type Quote.vehicle: Vehicle -> Driver !\n"},
    {"MOTPREM-java.xml", "      <field name=\"vehicle\" ref=\"Vehicle\"/>\n", "",
     "field-removed type Quote.vehicle -> : like Vehicle ->  !\n"},
    {"MOTPREM-java.xml", "      <field name=\"vehicle\" ref=\"Vehicle\"/>\n",
     "      <field name=\"vehicle\" ref=\"Vehicle\"/>\n      <field name=\"trailer\" "
     "ref=\"Vehicle\"/>\n",
     "field-added  -> type Quote.trailer:  -> like Vehicle !\n"},
    {"MOTPREM-java.xml", "</properties>", "<property name=\"since\" value=\"2001\"/></properties>",
     "property-added  -> property since:  -> 2001\n"},
    {"MOTPREM-com.xml",
     "<parameter name=\"tax\" byType=\"out\" dataType=\"int\" returnParameter=\"1\">",
     "<parameter name=\"tax\" byType=\"out\" dataType=\"int\">",
     "return-parameter-changed taxOn.tax returnParameter: yes -> no !\n"},
    {"MOTPREM-ws.xml", "name=\"discountFor\" entryPoint=\"MOTPDISC\" style=\"document\"",
     "name=\"discountFor\" entryPoint=\"MOTPDISC\" style=\"rpc\"",
     "style-changed discountFor style: document -> rpc !\n"},
    {"MOTPREM-ws.xml",
     "style=\"document\" inputUse=\"literal\" outputUse=\"literal\" "
     "inputNamespace=\"urn:mi:motor\" outputNamespace=\"urn:mi:motor:answer\">\n      "
     "<hiddenParameters/>",
     "style=\"document\" inputUse=\"literal\" outputUse=\"encoded\" "
     "inputNamespace=\"urn:mi:motor:2\" outputNamespace=\"urn:mi:motor:answer\">\n      "
     "<hiddenParameters/>",
     "use-changed discountFor outputUse: literal -> encoded !\n"
     "namespace-changed discountFor inputNamespace: urn:mi:motor -> urn:mi:motor:2 !\n"
     "use-changed taxOn outputUse: literal -> encoded !\n"
     "namespace-changed taxOn inputNamespace: urn:mi:motor -> urn:mi:motor:2 !\n"},
    {"MOTPREM-ws.xml", "fieldAttribute name=\"noClaimsClass\"",
     "fieldAttribute name=\"bonusClass\"",
     "field-renamed type Driver.@noClaimsClass -> type Driver.@bonusClass: noClaimsClass -> "
     "bonusClass !\n"},
    {"MOTPREM-java.xml",
     "    <operation name=\"taxOn\" entryPoint=\"MOTPTAX\" transactionType=\"never\">\n      "
     "<hiddenParameters/>\n      <parameters>\n        <parameter name=\"net\" byType=\"in\" "
     "dataType=\"int\">\n          <mappings>\n            <mapping item=\"LK-NET-AMOUNT\"/>\n     "
     "     </mappings>\n        </parameter>\n        <parameter name=\"tax\" byType=\"out\" "
     "dataType=\"int\">\n          <mappings>\n            <mapping item=\"LK-TAX-AMOUNT\"/>\n     "
     "     </mappings>\n        </parameter>\n      </parameters>\n    </operation>\n",
     "", "operation-removed taxOn ->  !\n"},
    {"MOTPREM-java.xml",
     "        <parameter name=\"tax\" byType=\"out\" dataType=\"int\">\n          <mappings>\n     "
     "       <mapping item=\"LK-TAX-AMOUNT\"/>\n          </mappings>\n        </parameter>\n",
     "", "parameter-removed taxOn.tax -> : out int ->  !\n"},
    {"MOTPREM-java.xml", "dataDictFilename=\"MOTPREM.xml\"", "dataDictFilename=\"dd/MOTPREM.xml\"",
     "dictionary-changed service: MOTPREM.xml -> dd/MOTPREM.xml\n"},
    {"MOTPREM-java.xml", "<property name=\"owner\" value=\"Motor",
     "<property name=\"owner\" value=\"Motors",
     "property-changed property owner: Motor insurance, product team -> Motors insurance, product "
     "team\n"},
    {"MOTPREM-java.xml", "<parameter name=\"Claim\" ", "<parameter name=\"Damage\" ",
     "type-definition-renamed type Claim -> type Damage: Claim -> Damage\n"
     "reference-changed type Driver.claims: Claim -> Claim (not found) !\n"},
    {"PAYSLIP-java.xml", "exitProgramName=\"", "exitProgramName=\"X",
     "exit-program-changed service: PAYEXIT -> XPAYEXIT\n"},
    {"DEPINT01.cbl", "       FD  JOURNAL.",
     "       FD  JOURNAL.\n       01  JRN-MORE                    PIC X(200).",
     "item-added  -> JRN-MORE:  -> alphanumeric X(200)\n"},
    {"MOTPREM-ws.xml",
     "      <header byType=\"in\" namespace=\"urn:mi:motor:header\" use=\"literal\">\n        "
     "<parameters>\n          <parameter name=\"policyNumber\" byType=\"in\" "
     "dataType=\"string\">\n            <mappings>\n              <mapping "
     "item=\"LK-REQUEST.LK-REQ-POLICY-NO\"/>\n            </mappings>\n          </parameter>\n    "
     "    </parameters>\n      </header>\n",
     "",
     "header-removed quote header of policyNumber ->  !\n"
     "header-removed instalments header of policyNumber ->  !\n"},
    {"MOTPREM-ws.xml",
     "      <fault namespace=\"urn:mi:motor:fault\" use=\"literal\">\n        <parameters>\n       "
     "   <parameter name=\"code\" byType=\"out\" dataType=\"short\">\n            <mappings>\n     "
     "         <mapping item=\"LK-RESULT.LK-RES-STATUS\"/>\n            </mappings>\n          "
     "</parameter>\n          <parameter name=\"reason\" byType=\"out\" dataType=\"string\">\n     "
     "       <mappings>\n              <mapping item=\"LK-RESULT.LK-RES-MESSAGE\"/>\n            "
     "</mappings>\n          </parameter>\n        </parameters>\n      </fault>\n",
     "",
     "fault-removed quote fault of code -> \n"
     "fault-removed instalments fault of code -> \n"},
    {"MOTPREM-ws.xml",
     "name=\"Premium\" namespace=\"urn:mi:motor:types\" elementForm=\"qualified\"",
     "name=\"Premium\" namespace=\"urn:mi:motor:types\" elementForm=\"unqualified\"",
     "form-changed type Premium elementForm: qualified -> unqualified !\n"},
    {"MOTPREM-java.xml",
     "      <field name=\"net\" dataType=\"BigDecimal\">\n        <mappings>\n          <mapping "
     "item=\"LK-RESULT.LK-RES-NET\"/>\n        </mappings>\n      </field>\n      <field "
     "name=\"tax\" dataType=\"BigDecimal\">\n        <mappings>\n          <mapping "
     "item=\"LK-RESULT.LK-RES-TAX\"/>\n        </mappings>\n      </field>\n",
     "      <field name=\"tax\" dataType=\"BigDecimal\">\n        <mappings>\n          <mapping "
     "item=\"LK-RESULT.LK-RES-TAX\"/>\n        </mappings>\n      </field>\n      <field "
     "name=\"net\" dataType=\"BigDecimal\">\n        <mappings>\n          <mapping "
     "item=\"LK-RESULT.LK-RES-NET\"/>\n        </mappings>\n      </field>\n",
     "field-reordered type Premium.net: 4 -> 5 !\n"},
};

// What is told of each change without regard to what it follows from, with old and new in each
// other's place or not. Of two that changed places one is told, which one is open.
std::multiset<std::string> allOf(const toolkit::Diff& diff, bool isMirrored) {
  std::multiset<std::string> lines;
  for (toolkit::Change change : diff.changes) {
    if (isMirrored) {
      change.kind = toolkit::findChangeKind(change.kind)->mirror;
      std::swap(change.oldPlace, change.newPlace);
      std::swap(change.oldValue, change.newValue);
    }
    const bool isReordered = change.kind.find("-reordered") != std::string::npos;
    lines.insert(isReordered ? change.kind : lineOf(change));
  }
  return lines;
}

// All rows share a reader: schemas are compiled once.
class DiffRowsTest : public testing::TestWithParam<DiffRow> {
 protected:
  static void SetUpTestSuite() {
    directory_.emplace();
    reader_.emplace(AS_SCHEMA_DIR);
  }
  static void TearDownTestSuite() {
    reader_.reset();
    directory_.reset();
  }

  // The two documents of the row as files: sources are imported.
  static std::string fileOf(const std::string& name, const std::string& text) {
    if (std::string(GetParam().example).find(".cbl") == std::string::npos) {
      return directory_->write(name, text);
    }
    toolkit::ImportOptions options;
    options.dialect = "natural";
    const toolkit::Imported imported =
        toolkit::importCobol(text, GetParam().example, nullptr, options);
    EXPECT_EQ(imported.programs.size(), 1U);
    EXPECT_FALSE(imported.programs.front().isRefused());
    return directory_->write(name, imported.programs.front().dictionary);
  }

  static std::string before() { return fileOf("old.xml", exampleText()); }
  static std::string after() {
    std::string text = exampleText();
    const std::string search = GetParam().search;
    const std::string replacement = GetParam().replacement;
    EXPECT_NE(text.find(search), std::string::npos);
    for (std::size_t at = 0; (at = text.find(search, at)) != std::string::npos;) {
      text.replace(at, search.size(), replacement);
      at += replacement.size();
    }
    return fileOf("new.xml", text);
  }

  static const toolkit::DocumentReader& reader() { return *reader_; }

 private:
  static std::string exampleText() {
    return test::contentOf(std::filesystem::path(AS_EXAMPLES_DIR) / GetParam().example);
  }

  static inline std::optional<test::TempDirectory> directory_;
  static inline std::optional<toolkit::DocumentReader> reader_;
};

TEST_P(DiffRowsTest, TellsThatAndNothingElse) {
  EXPECT_EQ(summaryOf(toolkit::diffFiles(reader(), before(), after())), GetParam().expected);
}

TEST_P(DiffRowsTest, IsMirroredWhenOldAndNewChangePlaces) {
  const std::string old = before();
  const std::string added = after();
  EXPECT_EQ(allOf(toolkit::diffFiles(reader(), old, added), false),
            allOf(toolkit::diffFiles(reader(), added, old), true));
}

// Rows tell a kind or its mirror.
TEST(DiffRowTableTest, EveryKindHasARow) {
  // What only follows from others, what no source leads to, and what services of two flavours and
  // services beside their dictionaries tell (see DiffTest.cpp).
  std::set<std::string> told = {"size-changed",
                                "item-moved",
                                "renames-changed",
                                "attribute-changed",
                                "file-added",
                                "file-removed",
                                "flavour-changed",
                                "mapping-lost",
                                "mapping-renamed",
                                "mapping-changed",
                                "mapping-moved",
                                "entry-point-lost",
                                "entry-point-changed",
                                "type-definition-added",
                                "type-definition-removed",
                                "document-added",
                                "document-removed"};
  for (const DiffRow& row : rows) {
    std::istringstream lines(row.expected);
    for (std::string line; std::getline(lines, line);) {
      const toolkit::ChangeKind* const kind =
          toolkit::findChangeKind(line.substr(0, line.find(' ')));
      ASSERT_NE(kind, nullptr) << line;
      told.insert(kind->id);
      told.insert(kind->mirror);
    }
  }
  for (const toolkit::ChangeKind& kind : toolkit::changeKinds())
    EXPECT_EQ(told.count(kind.id), 1U) << kind.id;
}

INSTANTIATE_TEST_SUITE_P(Changes, DiffRowsTest, testing::ValuesIn(rows));

}  // namespace
