// Made by AgentServices VERSION from DEPINT01-java.xml

/** Savings deposits: what program DEPINT01 does for its callers. */
public interface SavingsDeposits {

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
   * Operation 'postNightly' calls entry point 'DEPINT01'.
   *
   * @return see {@link Outcome}
   */
  @Transaction(TransactionType.NEVER)
  Outcome postNightly();

  /**
   * Operation 'postAgain' calls entry point 'DEPINT01'.
   *
   * @param arguments $command_line
   * @param corrections $stdin
   * @return see {@link Outcome}
   */
  @Transaction(TransactionType.NEVER)
  Outcome postAgain(
      String arguments,
      String corrections);

  /**
   * The structure of type Outcome.
   *
   * @param returnCode $return_code
   * @param report $stdout
   */
  record Outcome(
      int returnCode,
      String report) {}
}
