// Made by AgentServices VERSION from MOTPREM-java.xml

import java.math.BigDecimal;
import java.util.List;

/** Kfz-Prämie: what program MOTPREM does for its callers. */
public interface KfzPrMie {

  /** How an operation stands to the transaction of its caller. */
  enum TransactionType {
    /** It runs outside of any. */
    NOT_SUPPORTED,
    /** It runs in that of the caller, who has to have one. */
    MANDATORY,
    /** Its caller must not have one. */
    NEVER,
    /** It runs in that of the caller, or else in one of its own. */
    REQUIRES,
    /** It always runs in one of its own. */
    REQUIRES_NEW,
    /** It runs in that of the caller, if there is one. */
    SUPPORTS
  }

  /** Tells the transaction type of an operation. */
  @java.lang.annotation.Documented
  @java.lang.annotation.Retention(java.lang.annotation.RetentionPolicy.RUNTIME)
  @java.lang.annotation.Target(java.lang.annotation.ElementType.METHOD)
  @interface Transaction {
    /** {@return the type} */
    TransactionType value();
  }

  /**
   * Operation 'quote' calls entry point 'MOTPREM'.
   *
   * @param request see {@link Quote}
   * @return all that comes out
   */
  @Transaction(TransactionType.SUPPORTS)
  QuoteResult quote(Quote request);

  /**
   * Operation 'discountFor' calls entry point 'MOTPDISC'.
   *
   * @param noClaimsClass LK-NCD-CLASS, PIC S9(04), COMP-5; LK-NCD-CLASS-OK: '0' to '35'
   * @return LK-DISCOUNT-PCT, PIC S9(03)V99, COMP-3
   */
  @Transaction(TransactionType.NOT_SUPPORTED)
  BigDecimal discountFor(short noClaimsClass);

  /**
   * Operation 'taxOn' calls entry point 'MOTPTAX'.
   *
   * @param net LK-NET-AMOUNT, PIC S9(09), COMP-5
   * @return LK-TAX-AMOUNT, PIC S9(09), COMP-5
   */
  @Transaction(TransactionType.NEVER)
  int taxOn(int net);

  /**
   * Operation 'instalments' calls entry point 'MOTPINST'.
   *
   * @param request see {@link Quote}
   * @return all that comes out
   */
  @Transaction(TransactionType.REQUIRES_NEW)
  InstalmentsResult instalments(Quote request);

  /**
   * The structure of type Claim.
   *
   * @param year LK-REQUEST.LK-REQ-DRIVER.LK-DRV-CLAIM.LK-CLM-YEAR(*,*), PIC 9(04)
   * @param amount LK-REQUEST.LK-REQ-DRIVER.LK-DRV-CLAIM.LK-CLM-AMOUNT(*,*), PIC S9(07)V99
   * @param ownFault LK-REQUEST.LK-REQ-DRIVER.LK-DRV-CLAIM.LK-CLM-AT-FAULT(*,*), PIC X(01)
   */
  record Claim(
      short year,
      BigDecimal amount,
      String ownFault) {}

  /**
   * The structure of type Driver.
   *
   * @param surname LK-REQUEST.LK-REQ-DRIVER.LK-DRV-NAME.LK-DRV-SURNAME(*), PIC X(30)
   * @param givenName LK-REQUEST.LK-REQ-DRIVER.LK-DRV-NAME.LK-DRV-GIVEN(*), PIC X(20)
   * @param born LK-REQUEST.LK-REQ-DRIVER.LK-DRV-BORN(*), PIC 9(08)
   * @param licensed LK-REQUEST.LK-REQ-DRIVER.LK-DRV-LICENCE(*), PIC 9(08)
   * @param claims occurs 3 times
   * @param noClaimsClass LK-REQUEST.LK-REQ-DRIVER.LK-DRV-NCD-CLASS(*), PIC S9(02); LK-NCD-MALUS: '-2', '-1'; LK-NCD-NORMAL: '0' to '35'
   */
  record Driver(
      String surname,
      String givenName,
      int born,
      int licensed,
      List<Claim> claims,
      byte noClaimsClass) {}

  /**
   * The structure of type Vehicle.
   *
   * @param make LK-REQUEST.LK-REQ-VEHICLE.LK-VEH-MAKE, PIC X(20)
   * @param model LK-REQUEST.LK-REQ-VEHICLE.LK-VEH-MODEL, PIC X(30)
   * @param firstRegistered LK-REQUEST.LK-REQ-VEHICLE.LK-VEH-FIRST-REG, PIC 9(08)
   * @param powerKW LK-REQUEST.LK-REQ-VEHICLE.LK-VEH-POWER-KW, PIC 9(04), COMP
   * @param ccm LK-REQUEST.LK-REQ-VEHICLE.LK-VEH-CCM, PIC 9(05), COMP
   * @param newValue LK-REQUEST.LK-REQ-VEHICLE.LK-VEH-NEW-VALUE, PIC 9(07)V99
   * @param kmPerYear LK-REQUEST.LK-REQ-VEHICLE.LK-VEH-KM-YEAR, PIC 9(03)PPP
   * @param typeKey LK-REQUEST.LK-REQ-VEHICLE.LK-VEH-TYPE-KEY, PIC 9(07)
   * @param fuel LK-REQUEST.LK-REQ-VEHICLE.LK-VEH-FUEL, PIC X(01)
   */
  record Vehicle(
      String make,
      String model,
      int firstRegistered,
      short powerKW,
      int ccm,
      BigDecimal newValue,
      int kmPerYear,
      int typeKey,
      String fuel) {}

  /**
   * The structure of type Quote.
   *
   * @param policyParts see {@link QuotePolicyParts}
   * @param start see {@link QuoteStart}
   * @param cover LK-REQUEST.LK-REQ-COVER, PIC 9(01); LK-THIRD-PARTY: '1'; LK-PART-COVER: '2'; LK-FULL-COVER: '3'; LK-COVER-VALID: '1' to '3'
   * @param payment LK-REQUEST.LK-REQ-PAYMENT, PIC X(01)
   * @param vehicle see {@link Vehicle}
   * @param region see {@link QuoteRegion}
   * @param driverCount LK-REQUEST.LK-REQ-DRIVER-COUNT, PIC 9(02); LK-ANY-DRIVER: 'ZERO'
   * @param drivers occurs 1 to 6 times, depending on LK-REQUEST.LK-REQ-DRIVER-COUNT
   */
  record Quote(
      QuotePolicyParts policyParts,
      QuoteStart start,
      byte cover,
      String payment,
      Vehicle vehicle,
      QuoteRegion region,
      byte driverCount,
      List<Driver> drivers) {}

  /**
   * The structure of type Premium.
   *
   * @param status LK-RESULT.LK-RES-STATUS, PIC S9(04), COMP; LK-RES-OK: '0'; LK-RES-WARNING: '1' to '99'; LK-RES-REFUSED: '-999' to '-1'
   * @param message LK-RESULT.LK-RES-MESSAGE, PIC X(60)
   * @param parts LK-RESULT.LK-RES-PREMIUM-TABLE.LK-RES-PREMIUM(*), PIC S9(07)V99, COMP-3; occurs 4 times
   * @param net LK-RESULT.LK-RES-NET, PIC S9(07)V99, COMP-3
   * @param tax LK-RESULT.LK-RES-TAX, PIC S9(07)V99, COMP-3
   * @param gross LK-RESULT.LK-RES-GROSS, PIC S9(07)V99, COMP-3
   * @param printed LK-RESULT.LK-RES-GROSS-TEXT, PIC $$,$$$,$$9.99-
   */
  record Premium(
      short status,
      String message,
      List<BigDecimal> parts,
      BigDecimal net,
      BigDecimal tax,
      BigDecimal gross,
      String printed) {}

  /**
   * The structure of type Quote.policyParts.
   *
   * @param company LK-REQUEST.LK-REQ-POLICY-PARTS.LK-REQ-COMPANY, PIC X(02)
   * @param serial LK-REQUEST.LK-REQ-POLICY-PARTS.LK-REQ-SERIAL, PIC 9(08)
   * @param suffix LK-REQUEST.LK-REQ-POLICY-PARTS.LK-REQ-SUFFIX, PIC X(02)
   */
  record QuotePolicyParts(
      String company,
      int serial,
      String suffix) {}

  /**
   * The structure of type Quote.start.
   *
   * @param century LK-REQUEST.LK-REQ-START-DATE.LK-REQ-START-CC, PIC 9(02)
   * @param year LK-REQUEST.LK-REQ-START-DATE.LK-REQ-START-YY, PIC 9(02)
   * @param month LK-REQUEST.LK-REQ-START-DATE.LK-REQ-START-MM, PIC 9(02); LK-START-VALID: '1' to '12'
   * @param day LK-REQUEST.LK-REQ-START-DATE.LK-REQ-START-DD, PIC 9(02)
   */
  record QuoteStart(
      byte century,
      byte year,
      byte month,
      byte day) {}

  /**
   * The structure of type Quote.region.
   *
   * @param postcode LK-REQUEST.LK-REQ-REGION.LK-REG-POSTCODE, PIC X(10)
   * @param place LK-REQUEST.LK-REQ-REGION.LK-REG-PLACE, PIC X(30)
   * @param class_ called class; LK-REQUEST.LK-REQ-REGION.LK-REG-CLASS, PIC 9(02); LK-REG-CHEAP: '1' to '4'; LK-REG-DEAR: '9' to '12'
   */
  record QuoteRegion(
      String postcode,
      String place,
      byte class_) {}

  /**
   * The structure of instalments.plan.
   *
   * @param policyNumber LK-PLAN.LK-PLAN-HEAD.LK-PLAN-POLICY-NO, PIC X(12)
   * @param used LK-PLAN.LK-PLAN-HEAD.LK-PLAN-USED, PIC 9(02)
   * @param firstDue LK-PLAN.LK-PLAN-ENTRY.LK-PLAN-DUE(1), PIC 9(08)
   * @param entries occurs 1 to 12 times, depending on LK-PLAN.LK-PLAN-HEAD.LK-PLAN-USED
   */
  record InstalmentsPlan(
      String policyNumber,
      byte used,
      int firstDue,
      List<InstalmentsPlanEntries> entries) {}

  /**
   * The structure of instalments.plan.entries.
   *
   * @param due LK-PLAN.LK-PLAN-ENTRY.LK-PLAN-DUE(*), PIC 9(08)
   * @param amount LK-PLAN.LK-PLAN-ENTRY.LK-PLAN-AMOUNT(*), PIC S9(07)V99
   * @param printed LK-PLAN.LK-PLAN-ENTRY.LK-PLAN-PRINT(*), PIC Z(6)9.99
   * @param state LK-PLAN.LK-PLAN-ENTRY.LK-PLAN-STATE(*), PIC X(01)
   */
  record InstalmentsPlanEntries(
      int due,
      BigDecimal amount,
      String printed,
      String state) {}

  /**
   * What comes out of operation quote.
   *
   * @param premium see {@link Premium}
   * @param returnCode LK-RETURN-CODE, PIC S9(09), COMP-5
   */
  record QuoteResult(
      Premium premium,
      int returnCode) {}

  /**
   * What comes out of operation instalments.
   *
   * @param premium see {@link Premium}
   * @param plan see {@link InstalmentsPlan}
   */
  record InstalmentsResult(
      Premium premium,
      InstalmentsPlan plan) {}
}
