// Made by AgentServices VERSION from PAYSLIP-dotnet.xml

namespace Payslip
{
    /// <summary>Payslip: what program PAYSLIP does for its callers.</summary>
    public interface IPayslip
    {
        /// <summary>Operation 'calculate' calls entry point 'PAYSLIP'.</summary>
        /// <param name="employeeNumber">LK-EMPLOYEE-NO, PIC 9(09), COMP-5</param>
        /// <param name="period">see <see cref="Period"/></param>
        /// <returns>$return_code</returns>
        int calculate(long employeeNumber, Period period);

        /// <summary>Operation 'recalculate' calls entry point 'PAYSLIP'.</summary>
        /// <param name="employeeNumber">LK-EMPLOYEE-NO, PIC 9(09), COMP-5</param>
        /// <param name="period">see <see cref="Period"/></param>
        /// <param name="corrections">$stdin</param>
        /// <param name="log">$stdout</param>
        /// <param name="returnCode">$return_code</param>
        void recalculate(long employeeNumber, Period period, string corrections, out string log, out int returnCode);
    }

    /// <summary>The structure of type Period.</summary>
    public class Period
    {
        /// <summary>LK-PERIOD.LK-PERIOD-YEAR, PIC 9(04)</summary>
        public short year { get; set; }

        /// <summary>LK-PERIOD.LK-PERIOD-MONTH, PIC 9(02); LK-REGULAR-MONTH: '1' to '12'; LK-THIRTEENTH: '13'</summary>
        public sbyte month { get; set; }
    }
}
