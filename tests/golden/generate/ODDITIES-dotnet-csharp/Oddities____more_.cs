// Made by AgentServices VERSION from ODDITIES-dotnet.xml

namespace OdditiesMore
{
    /// <summary>Oddities &#38; &#60;more&#62;: what program ODDITIES does for its callers.</summary>
    public interface IOdditiesMore
    {
        /// <summary>Operation 'ask' calls entry point 'ODDITIES'.</summary>
        /// <param name="state">LK-ALL.LK-STATE, PIC 9; LK-OPEN: '1'; LK-CLOSED: '2', '3'</param>
        /// <param name="letter">LK-ALL.LK-LETTER, PIC X</param>
        /// <param name="sign">LK-ALL.LK-LETTER, PIC X</param>
        /// <param name="number">LK-ALL.LK-NUMBER, PIC S9(7)V99</param>
        /// <param name="thousands">LK-ALL.LK-THOUSANDS, PIC 9(3)P(3)</param>
        /// <param name="edited">LK-ALL.LK-EDITED, PIC Z(5)9.99-</param>
        /// <param name="float_">called float; LK-ALL.LK-FLOAT, COMP-1</param>
        /// <param name="double_">called double; LK-ALL.LK-DOUBLE, COMP-2</param>
        /// <param name="long_">called long; LK-ALL.LK-LONG, PIC S9(18), COMP-5</param>
        /// <param name="huge">LK-ALL.LK-HUGE, PIC S9(31), COMP-3</param>
        /// <param name="national">LK-ALL.LK-NATIONAL, PIC N(5), NATIONAL</param>
        /// <param name="coded">LK-ALL.LK-CODED.LK-TEXT(*), PIC X(10)</param>
        /// <param name="fragment">LK-ALL.LK-DATE, PIC X(20)</param>
        /// <param name="own">LK-ALL.LK-DATE, PIC X(20)</param>
        void ask(int state, string letter, ref string sign, string number, string thousands, out string edited, out float float_, out double double_, ref long long_, ref string huge, string national, out Coded coded, out string fragment, AskOwn own);
    }

    /// <summary>The structure of type Coded.</summary>
    public class Coded
    {
        /// <summary>LK-ALL.LK-CODED.LK-CODE(*), PIC X(2)</summary>
        public string code { get; set; }
    }

    /// <summary>The structure of ask.own.</summary>
    public class AskOwn
    {
        /// <summary>LK-ALL.LK-BYTES, PIC X(7)</summary>
        public string bytes { get; set; }
    }
}
