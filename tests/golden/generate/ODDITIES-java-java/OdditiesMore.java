// Made by AgentServices VERSION from ODDITIES-java.xml

import java.math.BigDecimal;

/** Oddities &#38; &#60;more&#62;: what program ODDITIES does for its callers. */
public interface OdditiesMore {

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
   * Operation 'ask' calls entry point 'ODDITIES'.
   *
   * @param state LK-ALL.LK-STATE, PIC 9; LK-OPEN: '1'; LK-CLOSED: '2', '3'
   * @param letter LK-ALL.LK-LETTER, PIC X
   * @param sign LK-ALL.LK-LETTER, PIC X
   * @param number LK-ALL.LK-NUMBER, PIC S9(7)V99
   * @param thousands LK-ALL.LK-THOUSANDS, PIC 9(3)P(3)
   * @param long_ called long; LK-ALL.LK-LONG, PIC S9(18), COMP-5
   * @param huge LK-ALL.LK-HUGE, PIC S9(31), COMP-3
   * @param national LK-ALL.LK-NATIONAL, PIC N(5), NATIONAL
   * @param own LK-ALL.LK-DATE, PIC X(20)
   * @return all that comes out
   */
  @Transaction(TransactionType.REQUIRES)
  AskResult ask(
      int state,
      String letter,
      String sign,
      String number,
      String thousands,
      long long_,
      BigDecimal huge,
      String national,
      AskOwn own);

  /**
   * The structure of type Coded.
   *
   * @param code LK-ALL.LK-CODED.LK-CODE(*), PIC X(2)
   */
  record Coded(String code) {}

  /**
   * The structure of ask.own.
   *
   * @param bytes LK-ALL.LK-BYTES, PIC X(7)
   */
  record AskOwn(String bytes) {}

  /**
   * What comes out of operation ask.
   *
   * @param sign LK-ALL.LK-LETTER, PIC X
   * @param edited LK-ALL.LK-EDITED, PIC Z(5)9.99-
   * @param float_ called float; LK-ALL.LK-FLOAT, COMP-1
   * @param double_ called double; LK-ALL.LK-DOUBLE, COMP-2
   * @param long_ called long; LK-ALL.LK-LONG, PIC S9(18), COMP-5
   * @param huge LK-ALL.LK-HUGE, PIC S9(31), COMP-3
   * @param coded LK-ALL.LK-CODED.LK-TEXT(*), PIC X(10)
   * @param fragment LK-ALL.LK-DATE, PIC X(20)
   */
  record AskResult(
      String sign,
      String edited,
      float float_,
      double double_,
      long long_,
      BigDecimal huge,
      Coded coded,
      byte[] fragment) {}
}
