// Made by AgentServices VERSION from WHSLOTS.xml

using System.Collections.Generic;

namespace WHSLOTS
{

    /// <summary>The structure of type SLOT-MAP.</summary>
    public class SlotMap
    {
        /// <summary>SLOT-MAP.SM-HOUSE, PIC X(04)</summary>
        public string SmHouse { get; set; }

        /// <summary>SLOT-MAP.SM-AS-OF, PIC 9(08)</summary>
        public int SmAsOf { get; set; }

        /// <summary>SLOT-MAP.SM-ZONE; occurs 6 times</summary>
        public IList<SlotMapSmZone> SmZone { get; set; }
    }

    /// <summary>The structure of type SLOT-MAP.SM-ZONE.</summary>
    public class SlotMapSmZone
    {
        /// <summary>SLOT-MAP.SM-ZONE.SM-ZONE-CODE, PIC X(02)</summary>
        public string SmZoneCode { get; set; }

        /// <summary>SLOT-MAP.SM-ZONE.SM-ZONE-TEMP, PIC S9(02)V9; SM-DEEP-FROZEN: '-30.0' to '-18.0'; SM-CHILLED: '2.0' to '8.0'</summary>
        public decimal SmZoneTemp { get; set; }

        /// <summary>SLOT-MAP.SM-ZONE.SM-AISLE; occurs 8 times</summary>
        public IList<SlotMapSmZoneSmAisle> SmAisle { get; set; }
    }

    /// <summary>The structure of type SLOT-MAP.SM-ZONE.SM-AISLE.</summary>
    public class SlotMapSmZoneSmAisle
    {
        /// <summary>SLOT-MAP.SM-ZONE.SM-AISLE.SM-AISLE-NO, PIC 9(02)</summary>
        public sbyte SmAisleNo { get; set; }

        /// <summary>SLOT-MAP.SM-ZONE.SM-AISLE.SM-AISLE-WAY, PIC 9(01); SM-ONE-WAY: '1'; SM-TWO-WAY: '2'; SM-CLOSED: '0', '9'</summary>
        public sbyte SmAisleWay { get; set; }

        /// <summary>SLOT-MAP.SM-ZONE.SM-AISLE.SM-BAY; occurs 20 times</summary>
        public IList<SlotMapSmZoneSmAisleSmBay> SmBay { get; set; }
    }

    /// <summary>The structure of type SLOT-MAP.SM-ZONE.SM-AISLE.SM-BAY.</summary>
    public class SlotMapSmZoneSmAisleSmBay
    {
        /// <summary>SLOT-MAP.SM-ZONE.SM-AISLE.SM-BAY.SM-BAY-NO, PIC 9(03)</summary>
        public short SmBayNo { get; set; }

        /// <summary>SLOT-MAP.SM-ZONE.SM-AISLE.SM-BAY.SM-STATE, PIC X(01)</summary>
        public string SmState { get; set; }

        /// <summary>SLOT-MAP.SM-ZONE.SM-AISLE.SM-BAY.SM-ARTICLE, PIC X(13)</summary>
        public string SmArticle { get; set; }

        /// <summary>SLOT-MAP.SM-ZONE.SM-AISLE.SM-BAY.SM-ON-HAND, PIC S9(07), COMP-3</summary>
        public int SmOnHand { get; set; }

        /// <summary>SLOT-MAP.SM-ZONE.SM-AISLE.SM-BAY.SM-HELD, PIC S9(07), COMP-3</summary>
        public int SmHeld { get; set; }

        /// <summary>SLOT-MAP.SM-ZONE.SM-AISLE.SM-BAY.SM-BEST-BEFORE, PIC 9(06), COMP-6</summary>
        public int SmBestBefore { get; set; }

        /// <summary>SLOT-MAP.SM-ZONE.SM-AISLE.SM-BAY.SM-LEVEL, PIC 9(02), COMP-X; occurs 4 times</summary>
        public IList<byte> SmLevel { get; set; }
    }

    /// <summary>The structure of type MOVEMENT.</summary>
    public class MOVEMENT
    {
        /// <summary>MOVEMENT.MV-HEAD</summary>
        public MovementMvHead MvHead { get; set; }

        /// <summary>MOVEMENT.MV-BODY, PIC X(64)</summary>
        public string MvBody { get; set; }

        /// <summary>MOVEMENT.MV-RESULT, PIC 9(02); MV-DONE: '0'; MV-WARNED: '1' to '9'; MV-REFUSED: '10' to '49', '90' to '99'</summary>
        public sbyte MvResult { get; set; }
    }

    /// <summary>The structure of type MOVEMENT.MV-HEAD.</summary>
    public class MovementMvHead
    {
        /// <summary>MOVEMENT.MV-HEAD.MV-KIND, PIC X(02)</summary>
        public string MvKind { get; set; }

        /// <summary>MOVEMENT.MV-HEAD.MV-SCANNER, PIC 9(05)</summary>
        public int MvScanner { get; set; }

        /// <summary>MOVEMENT.MV-HEAD.MV-STAMP</summary>
        public MovementMvHeadMvStamp MvStamp { get; set; }
    }

    /// <summary>The structure of type MOVEMENT.MV-HEAD.MV-STAMP.</summary>
    public class MovementMvHeadMvStamp
    {
        /// <summary>MOVEMENT.MV-HEAD.MV-STAMP.MV-DATE, PIC 9(08)</summary>
        public int MvDate { get; set; }

        /// <summary>MOVEMENT.MV-HEAD.MV-STAMP.MV-TIME, PIC 9(06); MV-NIGHT-SHIFT: '220000' to '235959', '0' to '55959'</summary>
        public int MvTime { get; set; }
    }

    /// <summary>The structure of type PICK-LIST.</summary>
    public class PickList
    {
        /// <summary>PICK-LIST.PL-HEADER</summary>
        public PickListPlHeader PlHeader { get; set; }

        /// <summary>PICK-LIST.PL-LINE; occurs 0 to 200 times, depending on PICK-LIST.PL-HEADER.PL-LINE-COUNT</summary>
        public IList<PickListPlLine> PlLine { get; set; }
    }

    /// <summary>The structure of type PICK-LIST.PL-HEADER.</summary>
    public class PickListPlHeader
    {
        /// <summary>PICK-LIST.PL-HEADER.PL-WAVE, PIC 9(06)</summary>
        public int PlWave { get; set; }

        /// <summary>PICK-LIST.PL-HEADER.PL-PICKER, PIC X(08)</summary>
        public string PlPicker { get; set; }

        /// <summary>PICK-LIST.PL-HEADER.PL-PRIORITY, PIC 9(01); PL-EXPRESS: '1'; PL-NORMAL: '2' to '5'</summary>
        public sbyte PlPriority { get; set; }

        /// <summary>PICK-LIST.PL-HEADER.PL-LINE-COUNT, PIC 9(03); PL-EMPTY: '0'; PL-FULL: '200'</summary>
        public short PlLineCount { get; set; }

        /// <summary>PICK-LIST.PL-HEADER.PL-WEIGHT, PIC 9(05)V999</summary>
        public decimal PlWeight { get; set; }
    }

    /// <summary>The structure of type PICK-LIST.PL-LINE.</summary>
    public class PickListPlLine
    {
        /// <summary>PICK-LIST.PL-LINE.PL-SLOT</summary>
        public PickListPlLinePlSlot PlSlot { get; set; }

        /// <summary>PICK-LIST.PL-LINE.PL-ARTICLE, PIC X(13)</summary>
        public string PlArticle { get; set; }

        /// <summary>PICK-LIST.PL-LINE.PL-TEXT, PIC X(30)</summary>
        public string PlText { get; set; }

        /// <summary>PICK-LIST.PL-LINE.PL-QTY, PIC 9(05)</summary>
        public int PlQty { get; set; }

        /// <summary>PICK-LIST.PL-LINE.PL-UNIT, PIC X(03)</summary>
        public string PlUnit { get; set; }

        /// <summary>PICK-LIST.PL-LINE.PL-SERIAL, PIC X(10); occurs 3 times</summary>
        public IList<string> PlSerial { get; set; }
    }

    /// <summary>The structure of type PICK-LIST.PL-LINE.PL-SLOT.</summary>
    public class PickListPlLinePlSlot
    {
        /// <summary>PICK-LIST.PL-LINE.PL-SLOT.PL-ZONE, PIC X(02)</summary>
        public string PlZone { get; set; }

        /// <summary>PICK-LIST.PL-LINE.PL-SLOT.PL-AISLE, PIC 9(02)</summary>
        public sbyte PlAisle { get; set; }

        /// <summary>PICK-LIST.PL-LINE.PL-SLOT.PL-BAY, PIC 9(03)</summary>
        public short PlBay { get; set; }
    }

    /// <summary>The structure of type QUEUE-CONTROL.</summary>
    public class QueueControl
    {
        /// <summary>QUEUE-CONTROL.QC-LOCK, PIC X(01)</summary>
        public string QcLock { get; set; }

        /// <summary>QUEUE-CONTROL.QC-DEPTHS</summary>
        public QueueControlQcDepths QcDepths { get; set; }
    }

    /// <summary>The structure of type QUEUE-CONTROL.QC-DEPTHS.</summary>
    public class QueueControlQcDepths
    {
        /// <summary>QUEUE-CONTROL.QC-DEPTHS.QC-INBOUND, PIC 9(04), COMP</summary>
        public short QcInbound { get; set; }

        /// <summary>QUEUE-CONTROL.QC-DEPTHS.QC-OUTBOUND, PIC 9(04), COMP</summary>
        public short QcOutbound { get; set; }
    }

    /// <summary>The structure of type TRANSPORT-QUEUE.</summary>
    public class TransportQueue
    {
        /// <summary>TRANSPORT-QUEUE.TQ-NAME, PIC X(08)</summary>
        public string TqName { get; set; }

        /// <summary>TRANSPORT-QUEUE.TQ-ORDER; occurs 1 to 500 times, depending on QUEUE-CONTROL.QC-DEPTHS.QC-OUTBOUND</summary>
        public IList<TransportQueueTqOrder> TqOrder { get; set; }
    }

    /// <summary>The structure of type TRANSPORT-QUEUE.TQ-ORDER.</summary>
    public class TransportQueueTqOrder
    {
        /// <summary>TRANSPORT-QUEUE.TQ-ORDER.TQ-TRUCK, PIC 9(03), COMP</summary>
        public short TqTruck { get; set; }

        /// <summary>TRANSPORT-QUEUE.TQ-ORDER.TQ-GATE, PIC X(01)</summary>
        public string TqGate { get; set; }

        /// <summary>TRANSPORT-QUEUE.TQ-ORDER.TQ-PALLETS, PIC 9(07), COMP</summary>
        public int TqPallets { get; set; }

        /// <summary>TRANSPORT-QUEUE.TQ-ORDER.TQ-WEIGHT, PIC 9(07), COMP-3</summary>
        public int TqWeight { get; set; }

        /// <summary>TRANSPORT-QUEUE.TQ-ORDER.TQ-DEST, PIC X(02)</summary>
        public string TqDest { get; set; }
    }

    /// <summary>The structure of type DISTANCES.</summary>
    public class DISTANCES
    {
        /// <summary>DISTANCES.DI-FROM; occurs 6 times</summary>
        public IList<DistancesDiFrom> DiFrom { get; set; }
    }

    /// <summary>The structure of type DISTANCES.DI-FROM.</summary>
    public class DistancesDiFrom
    {
        /// <summary>DISTANCES.DI-FROM.DI-TO, PIC 9(04), COMP; occurs 6 times</summary>
        public IList<short> DiTo { get; set; }
    }

    /// <summary>The structure of type DISTANCE-VALUES.</summary>
    public class DistanceValues
    {
        /// <summary>DISTANCE-VALUES.DV-METRES, PIC 9(04), COMP; occurs 36 times</summary>
        public IList<short> DvMetres { get; set; }
    }

    /// <summary>The structure of type WORK-FIELDS.</summary>
    public class WorkFields
    {
        /// <summary>WORK-FIELDS.WK-FOUND, PIC X(01)</summary>
        public string WkFound { get; set; }

        /// <summary>WORK-FIELDS.WK-QTY-LEFT, PIC S9(07), COMP-3</summary>
        public int WkQtyLeft { get; set; }

        /// <summary>WORK-FIELDS.WK-TAKE, PIC S9(07), COMP-3</summary>
        public int WkTake { get; set; }

        /// <summary>WORK-FIELDS.WK-ARTICLE, PIC X(13)</summary>
        public string WkArticle { get; set; }

        /// <summary>WORK-FIELDS.WK-PALLETS, PIC 9(04)</summary>
        public short WkPallets { get; set; }

        /// <summary>WORK-FIELDS.WK-DAYS-IN-STOCK; occurs 7 times</summary>
        public IList<WorkFieldsWkDaysInStock> WkDaysInStock { get; set; }
    }

    /// <summary>The structure of type WORK-FIELDS.WK-DAYS-IN-STOCK.</summary>
    public class WorkFieldsWkDaysInStock
    {
        /// <summary>WORK-FIELDS.WK-DAYS-IN-STOCK.WK-DAY-NAME, PIC X(02)</summary>
        public string WkDayName { get; set; }

        /// <summary>WORK-FIELDS.WK-DAYS-IN-STOCK.WK-DAY-PICKS, PIC 9(05); occurs 24 times</summary>
        public IList<int> WkDayPicks { get; set; }
    }

    /// <summary>The structure of type LK-MAP.</summary>
    public class LkMap
    {
        /// <summary>LK-MAP.LM-AS-OF, PIC 9(08)</summary>
        public int LmAsOf { get; set; }

        /// <summary>LK-MAP.LM-ZONE; occurs 6 times</summary>
        public IList<LkMapLmZone> LmZone { get; set; }
    }

    /// <summary>The structure of type LK-MAP.LM-ZONE.</summary>
    public class LkMapLmZone
    {
        /// <summary>LK-MAP.LM-ZONE.LM-ZONE-CODE, PIC X(02)</summary>
        public string LmZoneCode { get; set; }

        /// <summary>LK-MAP.LM-ZONE.LM-ZONE-TEMP, PIC S9(02)V9</summary>
        public decimal LmZoneTemp { get; set; }

        /// <summary>LK-MAP.LM-ZONE.LM-AISLE; occurs 8 times</summary>
        public IList<LkMapLmZoneLmAisle> LmAisle { get; set; }
    }

    /// <summary>The structure of type LK-MAP.LM-ZONE.LM-AISLE.</summary>
    public class LkMapLmZoneLmAisle
    {
        /// <summary>LK-MAP.LM-ZONE.LM-AISLE.LM-AISLE-NO, PIC 9(02)</summary>
        public sbyte LmAisleNo { get; set; }

        /// <summary>LK-MAP.LM-ZONE.LM-AISLE.LM-BAY; occurs 20 times</summary>
        public IList<LkMapLmZoneLmAisleLmBay> LmBay { get; set; }
    }

    /// <summary>The structure of type LK-MAP.LM-ZONE.LM-AISLE.LM-BAY.</summary>
    public class LkMapLmZoneLmAisleLmBay
    {
        /// <summary>LK-MAP.LM-ZONE.LM-AISLE.LM-BAY.LM-BAY-NO, PIC 9(03)</summary>
        public short LmBayNo { get; set; }

        /// <summary>LK-MAP.LM-ZONE.LM-AISLE.LM-BAY.LM-STATE, PIC X(01)</summary>
        public string LmState { get; set; }

        /// <summary>LK-MAP.LM-ZONE.LM-AISLE.LM-BAY.LM-ARTICLE, PIC X(13)</summary>
        public string LmArticle { get; set; }

        /// <summary>LK-MAP.LM-ZONE.LM-AISLE.LM-BAY.LM-ON-HAND, PIC S9(07), COMP-3</summary>
        public int LmOnHand { get; set; }

        /// <summary>LK-MAP.LM-ZONE.LM-AISLE.LM-BAY.LM-LEVEL, PIC 9(02), COMP-X; occurs 4 times</summary>
        public IList<byte> LmLevel { get; set; }
    }

    /// <summary>The structure of type LK-TASK.</summary>
    public class LkTask
    {
        /// <summary>LK-TASK.LT-KIND, PIC X(02)</summary>
        public string LtKind { get; set; }

        /// <summary>LK-TASK.LT-STAMP, PIC 9(14)</summary>
        public long LtStamp { get; set; }

        /// <summary>LK-TASK.LT-BODY, PIC X(40)</summary>
        public string LtBody { get; set; }
    }

    /// <summary>The structure of type LK-ANSWER.</summary>
    public class LkAnswer
    {
        /// <summary>LK-ANSWER.LA-CODE, PIC 9(02); LA-DONE: '0'; LA-REFUSED: '10' to '49', '90' to '99'</summary>
        public sbyte LaCode { get; set; }

        /// <summary>LK-ANSWER.LA-LINE-COUNT, PIC 9(03)</summary>
        public short LaLineCount { get; set; }

        /// <summary>LK-ANSWER.LA-LINE; occurs 0 to 200 times, depending on LK-ANSWER.LA-LINE-COUNT</summary>
        public IList<LkAnswerLaLine> LaLine { get; set; }
    }

    /// <summary>The structure of type LK-ANSWER.LA-LINE.</summary>
    public class LkAnswerLaLine
    {
        /// <summary>LK-ANSWER.LA-LINE.LA-BAY, PIC 9(03)</summary>
        public short LaBay { get; set; }

        /// <summary>LK-ANSWER.LA-LINE.LA-QTY, PIC 9(05)</summary>
        public int LaQty { get; set; }
    }
}
