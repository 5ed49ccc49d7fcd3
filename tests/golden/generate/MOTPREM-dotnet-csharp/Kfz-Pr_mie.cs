// Made by AgentServices VERSION from MOTPREM-dotnet.xml

using System.Collections.Generic;

namespace KfzPrämie
{
    /// <summary>Kfz-Prämie: what program MOTPREM does for its callers.</summary>
    public interface IKfzPrämie
    {
        /// <summary>Operation 'quote' calls entry point 'MOTPREM'.</summary>
        /// <param name="request">see <see cref="Quote"/></param>
        /// <param name="premium">see <see cref="Premium"/></param>
        /// <param name="returnCode">LK-RETURN-CODE, PIC S9(09), COMP-5</param>
        void quote(Quote request, out Premium premium, out int returnCode);

        /// <summary>Operation 'discountFor' calls entry point 'MOTPDISC'.</summary>
        /// <param name="noClaimsClass">LK-NCD-CLASS, PIC S9(04), COMP-5; LK-NCD-CLASS-OK: '0' to '35'</param>
        /// <returns>LK-DISCOUNT-PCT, PIC S9(03)V99, COMP-3</returns>
        decimal discountFor(short noClaimsClass);

        /// <summary>Operation 'taxOn' calls entry point 'MOTPTAX'.</summary>
        /// <param name="net">LK-NET-AMOUNT, PIC S9(09), COMP-5</param>
        /// <returns>LK-TAX-AMOUNT, PIC S9(09), COMP-5</returns>
        int taxOn(int net);

        /// <summary>Operation 'instalments' calls entry point 'MOTPINST'.</summary>
        /// <param name="request">see <see cref="Quote"/></param>
        /// <param name="premium">see <see cref="Premium"/></param>
        /// <param name="plan">see <see cref="InstalmentsPlan"/></param>
        void instalments(Quote request, out Premium premium, out InstalmentsPlan plan);
    }

    /// <summary>The structure of type Claim.</summary>
    public class Claim
    {
        /// <summary>LK-REQUEST.LK-REQ-DRIVER.LK-DRV-CLAIM.LK-CLM-YEAR(*,*), PIC 9(04)</summary>
        public short year { get; set; }

        /// <summary>LK-REQUEST.LK-REQ-DRIVER.LK-DRV-CLAIM.LK-CLM-AMOUNT(*,*), PIC S9(07)V99</summary>
        public decimal amount { get; set; }

        /// <summary>LK-REQUEST.LK-REQ-DRIVER.LK-DRV-CLAIM.LK-CLM-AT-FAULT(*,*), PIC X(01)</summary>
        public string ownFault { get; set; }
    }

    /// <summary>The structure of type Driver.</summary>
    public class Driver
    {
        /// <summary>LK-REQUEST.LK-REQ-DRIVER.LK-DRV-NAME.LK-DRV-SURNAME(*), PIC X(30)</summary>
        public string surname { get; set; }

        /// <summary>LK-REQUEST.LK-REQ-DRIVER.LK-DRV-NAME.LK-DRV-GIVEN(*), PIC X(20)</summary>
        public string givenName { get; set; }

        /// <summary>LK-REQUEST.LK-REQ-DRIVER.LK-DRV-BORN(*), PIC 9(08)</summary>
        public int born { get; set; }

        /// <summary>LK-REQUEST.LK-REQ-DRIVER.LK-DRV-LICENCE(*), PIC 9(08)</summary>
        public int licensed { get; set; }

        /// <summary>occurs 3 times</summary>
        public IList<Claim> claims { get; set; }

        /// <summary>LK-REQUEST.LK-REQ-DRIVER.LK-DRV-NCD-CLASS(*), PIC S9(02); LK-NCD-MALUS: '-2', '-1'; LK-NCD-NORMAL: '0' to '35'</summary>
        public sbyte noClaimsClass { get; set; }
    }

    /// <summary>The structure of type Vehicle.</summary>
    public class Vehicle
    {
        /// <summary>LK-REQUEST.LK-REQ-VEHICLE.LK-VEH-MAKE, PIC X(20)</summary>
        public string make { get; set; }

        /// <summary>LK-REQUEST.LK-REQ-VEHICLE.LK-VEH-MODEL, PIC X(30)</summary>
        public string model { get; set; }

        /// <summary>LK-REQUEST.LK-REQ-VEHICLE.LK-VEH-FIRST-REG, PIC 9(08)</summary>
        public int firstRegistered { get; set; }

        /// <summary>LK-REQUEST.LK-REQ-VEHICLE.LK-VEH-POWER-KW, PIC 9(04), COMP</summary>
        public short powerKW { get; set; }

        /// <summary>LK-REQUEST.LK-REQ-VEHICLE.LK-VEH-CCM, PIC 9(05), COMP</summary>
        public int ccm { get; set; }

        /// <summary>LK-REQUEST.LK-REQ-VEHICLE.LK-VEH-NEW-VALUE, PIC 9(07)V99</summary>
        public decimal newValue { get; set; }

        /// <summary>LK-REQUEST.LK-REQ-VEHICLE.LK-VEH-KM-YEAR, PIC 9(03)PPP</summary>
        public int kmPerYear { get; set; }

        /// <summary>LK-REQUEST.LK-REQ-VEHICLE.LK-VEH-TYPE-KEY, PIC 9(07)</summary>
        public int typeKey { get; set; }

        /// <summary>LK-REQUEST.LK-REQ-VEHICLE.LK-VEH-FUEL, PIC X(01)</summary>
        public string fuel { get; set; }
    }

    /// <summary>The structure of type Quote.</summary>
    public class Quote
    {
        /// <summary>see <see cref="QuotePolicyParts"/></summary>
        public QuotePolicyParts policyParts { get; set; }

        /// <summary>see <see cref="QuoteStart"/></summary>
        public QuoteStart start { get; set; }

        /// <summary>LK-REQUEST.LK-REQ-COVER, PIC 9(01); LK-THIRD-PARTY: '1'; LK-PART-COVER: '2'; LK-FULL-COVER: '3'; LK-COVER-VALID: '1' to '3'</summary>
        public sbyte cover { get; set; }

        /// <summary>LK-REQUEST.LK-REQ-PAYMENT, PIC X(01)</summary>
        public string payment { get; set; }

        /// <summary>see <see cref="Vehicle"/></summary>
        public Vehicle vehicle { get; set; }

        /// <summary>see <see cref="QuoteRegion"/></summary>
        public QuoteRegion region { get; set; }

        /// <summary>LK-REQUEST.LK-REQ-DRIVER-COUNT, PIC 9(02); LK-ANY-DRIVER: 'ZERO'</summary>
        public sbyte driverCount { get; set; }

        /// <summary>occurs 1 to 6 times, depending on LK-REQUEST.LK-REQ-DRIVER-COUNT</summary>
        public IList<Driver> drivers { get; set; }
    }

    /// <summary>The structure of type Premium.</summary>
    public class Premium
    {
        /// <summary>LK-RESULT.LK-RES-STATUS, PIC S9(04), COMP; LK-RES-OK: '0'; LK-RES-WARNING: '1' to '99'; LK-RES-REFUSED: '-999' to '-1'</summary>
        public short status { get; set; }

        /// <summary>LK-RESULT.LK-RES-MESSAGE, PIC X(60)</summary>
        public string message { get; set; }

        /// <summary>LK-RESULT.LK-RES-PREMIUM-TABLE.LK-RES-PREMIUM(*), PIC S9(07)V99, COMP-3; occurs 4 times</summary>
        public IList<decimal> parts { get; set; }

        /// <summary>LK-RESULT.LK-RES-NET, PIC S9(07)V99, COMP-3</summary>
        public decimal net { get; set; }

        /// <summary>LK-RESULT.LK-RES-TAX, PIC S9(07)V99, COMP-3</summary>
        public decimal tax { get; set; }

        /// <summary>LK-RESULT.LK-RES-GROSS, PIC S9(07)V99, COMP-3</summary>
        public decimal gross { get; set; }

        /// <summary>LK-RESULT.LK-RES-GROSS-TEXT, PIC $$,$$$,$$9.99-</summary>
        public string printed { get; set; }
    }

    /// <summary>The structure of type Quote.policyParts.</summary>
    public class QuotePolicyParts
    {
        /// <summary>LK-REQUEST.LK-REQ-POLICY-PARTS.LK-REQ-COMPANY, PIC X(02)</summary>
        public string company { get; set; }

        /// <summary>LK-REQUEST.LK-REQ-POLICY-PARTS.LK-REQ-SERIAL, PIC 9(08)</summary>
        public int serial { get; set; }

        /// <summary>LK-REQUEST.LK-REQ-POLICY-PARTS.LK-REQ-SUFFIX, PIC X(02)</summary>
        public string suffix { get; set; }
    }

    /// <summary>The structure of type Quote.start.</summary>
    public class QuoteStart
    {
        /// <summary>LK-REQUEST.LK-REQ-START-DATE.LK-REQ-START-CC, PIC 9(02)</summary>
        public sbyte century { get; set; }

        /// <summary>LK-REQUEST.LK-REQ-START-DATE.LK-REQ-START-YY, PIC 9(02)</summary>
        public sbyte year { get; set; }

        /// <summary>LK-REQUEST.LK-REQ-START-DATE.LK-REQ-START-MM, PIC 9(02); LK-START-VALID: '1' to '12'</summary>
        public sbyte month { get; set; }

        /// <summary>LK-REQUEST.LK-REQ-START-DATE.LK-REQ-START-DD, PIC 9(02)</summary>
        public sbyte day { get; set; }
    }

    /// <summary>The structure of type Quote.region.</summary>
    public class QuoteRegion
    {
        /// <summary>LK-REQUEST.LK-REQ-REGION.LK-REG-POSTCODE, PIC X(10)</summary>
        public string postcode { get; set; }

        /// <summary>LK-REQUEST.LK-REQ-REGION.LK-REG-PLACE, PIC X(30)</summary>
        public string place { get; set; }

        /// <summary>called class; LK-REQUEST.LK-REQ-REGION.LK-REG-CLASS, PIC 9(02); LK-REG-CHEAP: '1' to '4'; LK-REG-DEAR: '9' to '12'</summary>
        public sbyte class_ { get; set; }
    }

    /// <summary>The structure of instalments.plan.</summary>
    public class InstalmentsPlan
    {
        /// <summary>LK-PLAN.LK-PLAN-HEAD.LK-PLAN-POLICY-NO, PIC X(12)</summary>
        public string policyNumber { get; set; }

        /// <summary>LK-PLAN.LK-PLAN-HEAD.LK-PLAN-USED, PIC 9(02)</summary>
        public sbyte used { get; set; }

        /// <summary>LK-PLAN.LK-PLAN-ENTRY.LK-PLAN-DUE(1), PIC 9(08)</summary>
        public int firstDue { get; set; }

        /// <summary>occurs 1 to 12 times, depending on LK-PLAN.LK-PLAN-HEAD.LK-PLAN-USED</summary>
        public IList<InstalmentsPlanEntries> entries { get; set; }
    }

    /// <summary>The structure of instalments.plan.entries.</summary>
    public class InstalmentsPlanEntries
    {
        /// <summary>LK-PLAN.LK-PLAN-ENTRY.LK-PLAN-DUE(*), PIC 9(08)</summary>
        public int due { get; set; }

        /// <summary>LK-PLAN.LK-PLAN-ENTRY.LK-PLAN-AMOUNT(*), PIC S9(07)V99</summary>
        public decimal amount { get; set; }

        /// <summary>LK-PLAN.LK-PLAN-ENTRY.LK-PLAN-PRINT(*), PIC Z(6)9.99</summary>
        public string printed { get; set; }

        /// <summary>LK-PLAN.LK-PLAN-ENTRY.LK-PLAN-STATE(*), PIC X(01)</summary>
        public string state { get; set; }
    }
}
