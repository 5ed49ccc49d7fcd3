// Made by AgentServices VERSION from PAYSLIP-java.xml

/** Payslip: what program PAYSLIP does for its callers. */
public interface Payslip {

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
   * Operation 'calculate' calls entry point 'PAYSLIP'.
   *
   * @param employeeNumber LK-EMPLOYEE-NO, PIC 9(09), COMP-5
   * @param period see {@link Period}
   * @return $return_code
   */
  @Transaction(TransactionType.REQUIRES)
  int calculate(
      long employeeNumber,
      Period period);

  /**
   * Operation 'recalculate' calls entry point 'PAYSLIP'.
   *
   * @param employeeNumber LK-EMPLOYEE-NO, PIC 9(09), COMP-5
   * @param period see {@link Period}
   * @param corrections $stdin
   * @return all that comes out
   */
  @Transaction(TransactionType.REQUIRES_NEW)
  RecalculateResult recalculate(
      long employeeNumber,
      Period period,
      String corrections);

  /**
   * The structure of type Period.
   *
   * @param year LK-PERIOD.LK-PERIOD-YEAR, PIC 9(04)
   * @param month LK-PERIOD.LK-PERIOD-MONTH, PIC 9(02); LK-REGULAR-MONTH: '1' to '12'; LK-THIRTEENTH: '13'
   */
  record Period(
      short year,
      byte month) {}

  /**
   * What comes out of operation recalculate.
   *
   * @param log $stdout
   * @param returnCode $return_code
   */
  record RecalculateResult(
      String log,
      int returnCode) {}
}
