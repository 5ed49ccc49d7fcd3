// Made by AgentServices VERSION from MOTPREM.xml

import java.math.BigDecimal;
import java.util.List;

/** The records of program MOTPREM. */
public interface MOTPREM {

  /**
   * The structure of type WS-BASE-RATES.
   *
   * @param wsBaseRate WS-BASE-RATES.WS-BASE-RATE; occurs 9 times
   */
  record WsBaseRates(List<WsBaseRatesWsBaseRate> wsBaseRate) {}

  /**
   * The structure of type WS-BASE-RATES.WS-BASE-RATE.
   *
   * @param wsBrGroup WS-BASE-RATES.WS-BASE-RATE.WS-BR-GROUP, PIC 9(02)
   * @param wsBrThirdParty WS-BASE-RATES.WS-BASE-RATE.WS-BR-THIRD-PARTY, PIC S9(05)V99, COMP-3
   * @param wsBrPartCover WS-BASE-RATES.WS-BASE-RATE.WS-BR-PART-COVER, PIC S9(05)V99, COMP-3
   * @param wsBrFullCover WS-BASE-RATES.WS-BASE-RATE.WS-BR-FULL-COVER, PIC S9(05)V99, COMP-3
   */
  record WsBaseRatesWsBaseRate(
      byte wsBrGroup,
      BigDecimal wsBrThirdParty,
      BigDecimal wsBrPartCover,
      BigDecimal wsBrFullCover) {}

  /**
   * The structure of type WS-DISCOUNT-TABLE.
   *
   * @param wsDiscount WS-DISCOUNT-TABLE.WS-DISCOUNT, PIC V9(04), COMP-6; occurs 36 times
   */
  record WsDiscountTable(List<BigDecimal> wsDiscount) {}

  /**
   * The structure of type WS-WORK.
   *
   * @param wsGross WS-WORK.WS-GROSS, PIC S9(09)V99, COMP-3
   * @param wsNet WS-WORK.WS-NET, PIC S9(09)V99, COMP-3
   * @param wsFactor WS-WORK.WS-FACTOR, COMP-1
   * @param wsTaxPct WS-WORK.WS-TAX-PCT, PIC 9(02)V9(03), COMP-3
   * @param wsRest WS-WORK.WS-REST, PIC S9(09)V99, COMP-3
   * @param wsSub WS-WORK.WS-SUB, PIC S9(04), COMP
   */
  record WsWork(
      BigDecimal wsGross,
      BigDecimal wsNet,
      float wsFactor,
      BigDecimal wsTaxPct,
      BigDecimal wsRest,
      short wsSub) {}

  /**
   * The structure of type LK-REQUEST.
   *
   * @param lkReqVersion LK-REQUEST.LK-REQ-VERSION, PIC 9(04), COMP-X
   * @param lkReqPolicyNo LK-REQUEST.LK-REQ-POLICY-NO, PIC X(12)
   * @param lkReqStartDate LK-REQUEST.LK-REQ-START-DATE
   * @param lkReqCover LK-REQUEST.LK-REQ-COVER, PIC 9(01); LK-THIRD-PARTY: '1'; LK-PART-COVER: '2'; LK-FULL-COVER: '3'; LK-COVER-VALID: '1' to '3'
   * @param lkReqPayment LK-REQUEST.LK-REQ-PAYMENT, PIC X(01)
   * @param lkReqVehicle LK-REQUEST.LK-REQ-VEHICLE
   * @param lkReqRegion LK-REQUEST.LK-REQ-REGION
   * @param lkReqDriverCount LK-REQUEST.LK-REQ-DRIVER-COUNT, PIC 9(02); LK-ANY-DRIVER: 'ZERO'
   * @param lkReqDriver LK-REQUEST.LK-REQ-DRIVER; occurs 1 to 6 times, depending on LK-REQUEST.LK-REQ-DRIVER-COUNT
   */
  record LkRequest(
      int lkReqVersion,
      String lkReqPolicyNo,
      LkRequestLkReqStartDate lkReqStartDate,
      byte lkReqCover,
      String lkReqPayment,
      LkRequestLkReqVehicle lkReqVehicle,
      LkRequestLkReqRegion lkReqRegion,
      byte lkReqDriverCount,
      List<LkRequestLkReqDriver> lkReqDriver) {}

  /**
   * The structure of type LK-REQUEST.LK-REQ-START-DATE.
   *
   * @param lkReqStartCc LK-REQUEST.LK-REQ-START-DATE.LK-REQ-START-CC, PIC 9(02)
   * @param lkReqStartYy LK-REQUEST.LK-REQ-START-DATE.LK-REQ-START-YY, PIC 9(02)
   * @param lkReqStartMm LK-REQUEST.LK-REQ-START-DATE.LK-REQ-START-MM, PIC 9(02); LK-START-VALID: '1' to '12'
   * @param lkReqStartDd LK-REQUEST.LK-REQ-START-DATE.LK-REQ-START-DD, PIC 9(02)
   */
  record LkRequestLkReqStartDate(
      byte lkReqStartCc,
      byte lkReqStartYy,
      byte lkReqStartMm,
      byte lkReqStartDd) {}

  /**
   * The structure of type LK-REQUEST.LK-REQ-VEHICLE.
   *
   * @param lkVehMake LK-REQUEST.LK-REQ-VEHICLE.LK-VEH-MAKE, PIC X(20)
   * @param lkVehModel LK-REQUEST.LK-REQ-VEHICLE.LK-VEH-MODEL, PIC X(30)
   * @param lkVehTypeKey LK-REQUEST.LK-REQ-VEHICLE.LK-VEH-TYPE-KEY, PIC 9(07)
   * @param lkVehFirstReg LK-REQUEST.LK-REQ-VEHICLE.LK-VEH-FIRST-REG, PIC 9(08)
   * @param lkVehPowerKw LK-REQUEST.LK-REQ-VEHICLE.LK-VEH-POWER-KW, PIC 9(04), COMP
   * @param lkVehCcm LK-REQUEST.LK-REQ-VEHICLE.LK-VEH-CCM, PIC 9(05), COMP
   * @param lkVehFuel LK-REQUEST.LK-REQ-VEHICLE.LK-VEH-FUEL, PIC X(01)
   * @param lkVehNewValue LK-REQUEST.LK-REQ-VEHICLE.LK-VEH-NEW-VALUE, PIC 9(07)V99
   * @param lkVehKmYear LK-REQUEST.LK-REQ-VEHICLE.LK-VEH-KM-YEAR, PIC 9(03)PPP
   */
  record LkRequestLkReqVehicle(
      String lkVehMake,
      String lkVehModel,
      int lkVehTypeKey,
      int lkVehFirstReg,
      short lkVehPowerKw,
      int lkVehCcm,
      String lkVehFuel,
      BigDecimal lkVehNewValue,
      int lkVehKmYear) {}

  /**
   * The structure of type LK-REQUEST.LK-REQ-REGION.
   *
   * @param lkRegPostcode LK-REQUEST.LK-REQ-REGION.LK-REG-POSTCODE, PIC X(10)
   * @param lkRegPlace LK-REQUEST.LK-REQ-REGION.LK-REG-PLACE, PIC X(30)
   * @param lkRegClass LK-REQUEST.LK-REQ-REGION.LK-REG-CLASS, PIC 9(02); LK-REG-CHEAP: '1' to '4'; LK-REG-DEAR: '9' to '12'
   */
  record LkRequestLkReqRegion(
      String lkRegPostcode,
      String lkRegPlace,
      byte lkRegClass) {}

  /**
   * The structure of type LK-REQUEST.LK-REQ-DRIVER.
   *
   * @param lkDrvName LK-REQUEST.LK-REQ-DRIVER.LK-DRV-NAME
   * @param lkDrvBorn LK-REQUEST.LK-REQ-DRIVER.LK-DRV-BORN, PIC 9(08)
   * @param lkDrvLicence LK-REQUEST.LK-REQ-DRIVER.LK-DRV-LICENCE, PIC 9(08)
   * @param lkDrvNcdClass LK-REQUEST.LK-REQ-DRIVER.LK-DRV-NCD-CLASS, PIC S9(02); LK-NCD-MALUS: '-2', '-1'; LK-NCD-NORMAL: '0' to '35'
   * @param lkDrvClaim LK-REQUEST.LK-REQ-DRIVER.LK-DRV-CLAIM; occurs 3 times
   */
  record LkRequestLkReqDriver(
      LkRequestLkReqDriverLkDrvName lkDrvName,
      int lkDrvBorn,
      int lkDrvLicence,
      byte lkDrvNcdClass,
      List<LkRequestLkReqDriverLkDrvClaim> lkDrvClaim) {}

  /**
   * The structure of type LK-REQUEST.LK-REQ-DRIVER.LK-DRV-NAME.
   *
   * @param lkDrvSurname LK-REQUEST.LK-REQ-DRIVER.LK-DRV-NAME.LK-DRV-SURNAME, PIC X(30)
   * @param lkDrvGiven LK-REQUEST.LK-REQ-DRIVER.LK-DRV-NAME.LK-DRV-GIVEN, PIC X(20)
   */
  record LkRequestLkReqDriverLkDrvName(
      String lkDrvSurname,
      String lkDrvGiven) {}

  /**
   * The structure of type LK-REQUEST.LK-REQ-DRIVER.LK-DRV-CLAIM.
   *
   * @param lkClmYear LK-REQUEST.LK-REQ-DRIVER.LK-DRV-CLAIM.LK-CLM-YEAR, PIC 9(04)
   * @param lkClmAmount LK-REQUEST.LK-REQ-DRIVER.LK-DRV-CLAIM.LK-CLM-AMOUNT, PIC S9(07)V99
   * @param lkClmAtFault LK-REQUEST.LK-REQ-DRIVER.LK-DRV-CLAIM.LK-CLM-AT-FAULT, PIC X(01)
   */
  record LkRequestLkReqDriverLkDrvClaim(
      short lkClmYear,
      BigDecimal lkClmAmount,
      String lkClmAtFault) {}

  /**
   * The structure of type LK-RESULT.
   *
   * @param lkResStatus LK-RESULT.LK-RES-STATUS, PIC S9(04), COMP; LK-RES-OK: '0'; LK-RES-WARNING: '1' to '99'; LK-RES-REFUSED: '-999' to '-1'
   * @param lkResMessage LK-RESULT.LK-RES-MESSAGE, PIC X(60)
   * @param lkResPremiums LK-RESULT.LK-RES-PREMIUMS
   * @param lkResNet LK-RESULT.LK-RES-NET, PIC S9(07)V99, COMP-3
   * @param lkResTax LK-RESULT.LK-RES-TAX, PIC S9(07)V99, COMP-3
   * @param lkResGross LK-RESULT.LK-RES-GROSS, PIC S9(07)V99, COMP-3
   * @param lkResGrossText LK-RESULT.LK-RES-GROSS-TEXT, PIC $$,$$$,$$9.99-
   */
  record LkResult(
      short lkResStatus,
      String lkResMessage,
      LkResultLkResPremiums lkResPremiums,
      BigDecimal lkResNet,
      BigDecimal lkResTax,
      BigDecimal lkResGross,
      String lkResGrossText) {}

  /**
   * The structure of type LK-RESULT.LK-RES-PREMIUMS.
   *
   * @param lkResThirdParty LK-RESULT.LK-RES-PREMIUMS.LK-RES-THIRD-PARTY, PIC S9(07)V99, COMP-3
   * @param lkResPartCover LK-RESULT.LK-RES-PREMIUMS.LK-RES-PART-COVER, PIC S9(07)V99, COMP-3
   * @param lkResFullCover LK-RESULT.LK-RES-PREMIUMS.LK-RES-FULL-COVER, PIC S9(07)V99, COMP-3
   * @param lkResExtras LK-RESULT.LK-RES-PREMIUMS.LK-RES-EXTRAS, PIC S9(07)V99, COMP-3
   */
  record LkResultLkResPremiums(
      BigDecimal lkResThirdParty,
      BigDecimal lkResPartCover,
      BigDecimal lkResFullCover,
      BigDecimal lkResExtras) {}

  /**
   * The structure of type LK-PLAN.
   *
   * @param lkPlanHead LK-PLAN.LK-PLAN-HEAD
   * @param lkPlanEntry LK-PLAN.LK-PLAN-ENTRY; occurs 1 to 12 times, depending on LK-PLAN.LK-PLAN-HEAD.LK-PLAN-USED
   */
  record LkPlan(
      LkPlanLkPlanHead lkPlanHead,
      List<LkPlanLkPlanEntry> lkPlanEntry) {}

  /**
   * The structure of type LK-PLAN.LK-PLAN-HEAD.
   *
   * @param lkPlanPolicyNo LK-PLAN.LK-PLAN-HEAD.LK-PLAN-POLICY-NO, PIC X(12)
   * @param lkPlanUsed LK-PLAN.LK-PLAN-HEAD.LK-PLAN-USED, PIC 9(02)
   */
  record LkPlanLkPlanHead(
      String lkPlanPolicyNo,
      byte lkPlanUsed) {}

  /**
   * The structure of type LK-PLAN.LK-PLAN-ENTRY.
   *
   * @param lkPlanDue LK-PLAN.LK-PLAN-ENTRY.LK-PLAN-DUE, PIC 9(08)
   * @param lkPlanAmount LK-PLAN.LK-PLAN-ENTRY.LK-PLAN-AMOUNT, PIC S9(07)V99
   * @param lkPlanPrint LK-PLAN.LK-PLAN-ENTRY.LK-PLAN-PRINT, PIC Z(6)9.99
   * @param lkPlanState LK-PLAN.LK-PLAN-ENTRY.LK-PLAN-STATE, PIC X(01)
   */
  record LkPlanLkPlanEntry(
      int lkPlanDue,
      BigDecimal lkPlanAmount,
      String lkPlanPrint,
      String lkPlanState) {}
}
