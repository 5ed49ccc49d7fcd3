// Made by AgentServices VERSION from DEPINT01-dotnet.xml

namespace SavingsDeposits
{
    /// <summary>Savings deposits: what program DEPINT01 does for its callers.</summary>
    public interface ISavingsDeposits
    {
        /// <summary>Operation 'postNightly' calls entry point 'DEPINT01'.</summary>
        /// <returns>see <see cref="Outcome"/></returns>
        Outcome postNightly();

        /// <summary>Operation 'postAgain' calls entry point 'DEPINT01'.</summary>
        /// <param name="arguments">$command_line</param>
        /// <param name="corrections">$stdin</param>
        /// <returns>see <see cref="Outcome"/></returns>
        Outcome postAgain(string arguments, string corrections);
    }

    /// <summary>The structure of type Outcome.</summary>
    public class Outcome
    {
        /// <summary>$return_code</summary>
        public int returnCode { get; set; }

        /// <summary>$stdout</summary>
        public string report { get; set; }
    }
}
