// Made by AgentServices VERSION from WHSLOTS-dotnet.xml

using System.Collections.Generic;

namespace WarehouseSlots
{
    /// <summary>Warehouse slots: what program WHSLOTS does for its callers.</summary>
    public interface IWarehouseSlots
    {
        /// <summary>Operation 'map' calls entry point 'WHSMAP'.</summary>
        /// <param name="house">LK-HOUSE, PIC X(04)</param>
        /// <param name="asOf">LK-MAP.LM-AS-OF, PIC 9(08)</param>
        /// <param name="zones">occurs 6 times</param>
        void map(string house, out int asOf, out IList<Zone> zones);

        /// <summary>Operation 'coldStore' calls entry point 'WHSMAP'.</summary>
        /// <returns>occurs 8 times</returns>
        IList<ColdStoreAisles> coldStore();

        /// <summary>Operation 'receive' calls entry point 'WHSTASK'.</summary>
        /// <param name="orderNumber">LK-TASK.LT-RECEIPT-BODY.LT-RC-ORDER-NO, PIC 9(10)</param>
        /// <param name="article">LK-TASK.LT-RECEIPT-BODY.LT-RC-ARTICLE, PIC X(13)</param>
        /// <param name="quantity">LK-TASK.LT-RECEIPT-BODY.LT-RC-QTY, PIC 9(07)</param>
        /// <returns>see <see cref="Answer"/></returns>
        Answer receive(long orderNumber, string article, int quantity);

        /// <summary>Operation 'pick' calls entry point 'WHSTASK'.</summary>
        /// <param name="wave">LK-TASK.LT-PICK-BODY.LT-PK-WAVE, PIC 9(06)</param>
        /// <param name="article">LK-TASK.LT-PICK-BODY.LT-PK-ARTICLE, PIC X(13)</param>
        /// <param name="quantity">LK-TASK.LT-PICK-BODY.LT-PK-QTY-ASKED, PIC 9(07)</param>
        /// <param name="taken">LK-TASK.LT-PICK-BODY.LT-PK-QTY-TAKEN, PIC 9(07)</param>
        /// <param name="answer">see <see cref="Answer"/></param>
        void pick(int wave, string article, int quantity, out int taken, out Answer answer);
    }

    /// <summary>The structure of type Bay.</summary>
    public class Bay
    {
        /// <summary>LK-MAP.LM-ZONE.LM-AISLE.LM-BAY.LM-ARTICLE(*,*,*), PIC X(13)</summary>
        public string article { get; set; }

        /// <summary>LK-MAP.LM-ZONE.LM-AISLE.LM-BAY.LM-ON-HAND(*,*,*), PIC S9(07), COMP-3</summary>
        public int onHand { get; set; }

        /// <summary>LK-MAP.LM-ZONE.LM-AISLE.LM-BAY.LM-LEVEL(*,*,*,*), PIC 9(02), COMP-X; occurs 4 times</summary>
        public IList<short> levels { get; set; }

        /// <summary>LK-MAP.LM-ZONE.LM-AISLE.LM-BAY.LM-BAY-NO(*,*,*), PIC 9(03)</summary>
        public short number { get; set; }

        /// <summary>LK-MAP.LM-ZONE.LM-AISLE.LM-BAY.LM-STATE(*,*,*), PIC X(01)</summary>
        public string state { get; set; }
    }

    /// <summary>The structure of type Aisle.</summary>
    public class Aisle
    {
        /// <summary>LK-MAP.LM-ZONE.LM-AISLE.LM-AISLE-NO(*,*), PIC 9(02)</summary>
        public sbyte number { get; set; }

        /// <summary>occurs 20 times</summary>
        public IList<Bay> bays { get; set; }
    }

    /// <summary>The structure of type Zone.</summary>
    public class Zone
    {
        /// <summary>LK-MAP.LM-ZONE.LM-ZONE-CODE(*), PIC X(02)</summary>
        public string code { get; set; }

        /// <summary>LK-MAP.LM-ZONE.LM-ZONE-TEMP(*), PIC S9(02)V9</summary>
        public decimal temperature { get; set; }

        /// <summary>occurs 8 times</summary>
        public IList<Aisle> aisles { get; set; }
    }

    /// <summary>The structure of type Answer.</summary>
    public class Answer
    {
        /// <summary>LK-ANSWER.LA-CODE, PIC 9(02); LA-DONE: '0'; LA-REFUSED: '10' to '49', '90' to '99'</summary>
        public sbyte code { get; set; }

        /// <summary>LK-ANSWER.LA-LINE-COUNT, PIC 9(03)</summary>
        public short lineCount { get; set; }

        /// <summary>occurs 0 to 200 times, depending on LK-ANSWER.LA-LINE-COUNT</summary>
        public IList<AnswerLines> lines { get; set; }
    }

    /// <summary>The structure of type Answer.lines.</summary>
    public class AnswerLines
    {
        /// <summary>LK-ANSWER.LA-LINE.LA-BAY(*), PIC 9(03)</summary>
        public short bay { get; set; }

        /// <summary>LK-ANSWER.LA-LINE.LA-QTY(*), PIC 9(05)</summary>
        public int quantity { get; set; }
    }

    /// <summary>The structure of coldStore.aisles.</summary>
    public class ColdStoreAisles
    {
        /// <summary>occurs 20 times</summary>
        public IList<ColdStoreAislesBays> bays { get; set; }
    }

    /// <summary>The structure of coldStore.aisles.bays.</summary>
    public class ColdStoreAislesBays
    {
        /// <summary>LK-MAP.LM-ZONE.LM-AISLE.LM-BAY.LM-ARTICLE(1,*,*), PIC X(13)</summary>
        public string article { get; set; }

        /// <summary>LK-MAP.LM-ZONE.LM-AISLE.LM-BAY.LM-ON-HAND(1,*,*), PIC S9(07), COMP-3</summary>
        public int onHand { get; set; }

        /// <summary>LK-MAP.LM-ZONE.LM-AISLE.LM-BAY.LM-LEVEL(1,*,*,1), PIC 9(02), COMP-X</summary>
        public short lowestLevel { get; set; }
    }
}
