// Made by AgentServices VERSION from WHSLOTS-java.xml

import java.math.BigDecimal;
import java.util.List;

/** Warehouse slots: what program WHSLOTS does for its callers. */
public interface WarehouseSlots {

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
   * Operation 'map' calls entry point 'WHSMAP'.
   *
   * @param house LK-HOUSE, PIC X(04)
   * @return all that comes out
   */
  @Transaction(TransactionType.SUPPORTS)
  MapResult map(String house);

  /**
   * Operation 'coldStore' calls entry point 'WHSMAP'.
   *
   * @return occurs 8 times
   */
  @Transaction(TransactionType.SUPPORTS)
  List<ColdStoreAisles> coldStore();

  /**
   * Operation 'receive' calls entry point 'WHSTASK'.
   *
   * @param orderNumber LK-TASK.LT-RECEIPT-BODY.LT-RC-ORDER-NO, PIC 9(10)
   * @param article LK-TASK.LT-RECEIPT-BODY.LT-RC-ARTICLE, PIC X(13)
   * @param quantity LK-TASK.LT-RECEIPT-BODY.LT-RC-QTY, PIC 9(07)
   * @return see {@link Answer}
   */
  @Transaction(TransactionType.REQUIRES)
  Answer receive(
      long orderNumber,
      String article,
      int quantity);

  /**
   * Operation 'pick' calls entry point 'WHSTASK'.
   *
   * @param wave LK-TASK.LT-PICK-BODY.LT-PK-WAVE, PIC 9(06)
   * @param article LK-TASK.LT-PICK-BODY.LT-PK-ARTICLE, PIC X(13)
   * @param quantity LK-TASK.LT-PICK-BODY.LT-PK-QTY-ASKED, PIC 9(07)
   * @return all that comes out
   */
  @Transaction(TransactionType.MANDATORY)
  PickResult pick(
      int wave,
      String article,
      int quantity);

  /**
   * The structure of type Bay.
   *
   * @param article LK-MAP.LM-ZONE.LM-AISLE.LM-BAY.LM-ARTICLE(*,*,*), PIC X(13)
   * @param onHand LK-MAP.LM-ZONE.LM-AISLE.LM-BAY.LM-ON-HAND(*,*,*), PIC S9(07), COMP-3
   * @param levels LK-MAP.LM-ZONE.LM-AISLE.LM-BAY.LM-LEVEL(*,*,*,*), PIC 9(02), COMP-X; occurs 4 times
   * @param number LK-MAP.LM-ZONE.LM-AISLE.LM-BAY.LM-BAY-NO(*,*,*), PIC 9(03)
   * @param state LK-MAP.LM-ZONE.LM-AISLE.LM-BAY.LM-STATE(*,*,*), PIC X(01)
   */
  record Bay(
      String article,
      int onHand,
      List<Short> levels,
      short number,
      String state) {}

  /**
   * The structure of type Aisle.
   *
   * @param number LK-MAP.LM-ZONE.LM-AISLE.LM-AISLE-NO(*,*), PIC 9(02)
   * @param bays occurs 20 times
   */
  record Aisle(
      byte number,
      List<Bay> bays) {}

  /**
   * The structure of type Zone.
   *
   * @param code LK-MAP.LM-ZONE.LM-ZONE-CODE(*), PIC X(02)
   * @param temperature LK-MAP.LM-ZONE.LM-ZONE-TEMP(*), PIC S9(02)V9
   * @param aisles occurs 8 times
   */
  record Zone(
      String code,
      BigDecimal temperature,
      List<Aisle> aisles) {}

  /**
   * The structure of type Answer.
   *
   * @param code LK-ANSWER.LA-CODE, PIC 9(02); LA-DONE: '0'; LA-REFUSED: '10' to '49', '90' to '99'
   * @param lineCount LK-ANSWER.LA-LINE-COUNT, PIC 9(03)
   * @param lines occurs 0 to 200 times, depending on LK-ANSWER.LA-LINE-COUNT
   */
  record Answer(
      byte code,
      short lineCount,
      List<AnswerLines> lines) {}

  /**
   * The structure of type Answer.lines.
   *
   * @param bay LK-ANSWER.LA-LINE.LA-BAY(*), PIC 9(03)
   * @param quantity LK-ANSWER.LA-LINE.LA-QTY(*), PIC 9(05)
   */
  record AnswerLines(
      short bay,
      int quantity) {}

  /**
   * The structure of coldStore.aisles.
   *
   * @param bays occurs 20 times
   */
  record ColdStoreAisles(List<ColdStoreAislesBays> bays) {}

  /**
   * The structure of coldStore.aisles.bays.
   *
   * @param article LK-MAP.LM-ZONE.LM-AISLE.LM-BAY.LM-ARTICLE(1,*,*), PIC X(13)
   * @param onHand LK-MAP.LM-ZONE.LM-AISLE.LM-BAY.LM-ON-HAND(1,*,*), PIC S9(07), COMP-3
   * @param lowestLevel LK-MAP.LM-ZONE.LM-AISLE.LM-BAY.LM-LEVEL(1,*,*,1), PIC 9(02), COMP-X
   */
  record ColdStoreAislesBays(
      String article,
      int onHand,
      short lowestLevel) {}

  /**
   * What comes out of operation map.
   *
   * @param asOf LK-MAP.LM-AS-OF, PIC 9(08)
   * @param zones occurs 6 times
   */
  record MapResult(
      int asOf,
      List<Zone> zones) {}

  /**
   * What comes out of operation pick.
   *
   * @param taken LK-TASK.LT-PICK-BODY.LT-PK-QTY-TAKEN, PIC 9(07)
   * @param answer see {@link Answer}
   */
  record PickResult(
      int taken,
      Answer answer) {}
}
