# Completion of agentservices for bash.
_agentservices() {
  local cur=${COMP_WORDS[COMP_CWORD]} prev=${COMP_WORDS[COMP_CWORD-1]}
  local command='' options='' words='' isValue='' i
  for ((i = 1; i < COMP_CWORD; i++)); do
    case ${COMP_WORDS[i]} in
      --schemas) ((i++)) ;;
      -*) ;;
      *) command=${COMP_WORDS[i]}; break ;;
    esac
  done
  COMPREPLY=()
  case "$command $prev" in
    " --schemas") words=''; isValue=1 ;;
    "show --jobs") words=''; isValue=1 ;;
    "show --color") words='auto always never'; isValue=1 ;;
    "show --schemas") words=''; isValue=1 ;;
    "validate --jobs") words=''; isValue=1 ;;
    "validate --format") words='text json sarif'; isValue=1 ;;
    "validate --color") words='auto always never'; isValue=1 ;;
    "validate --schemas") words=''; isValue=1 ;;
    "lint --jobs") words=''; isValue=1 ;;
    "lint --dictionary") words=''; isValue=1 ;;
    "lint --rule") words=''; isValue=1 ;;
    "lint --baseline") words=''; isValue=1 ;;
    "lint --write-baseline") words=''; isValue=1 ;;
    "lint --format") words='text json sarif'; isValue=1 ;;
    "lint --color") words='auto always never'; isValue=1 ;;
    "lint --schemas") words=''; isValue=1 ;;
    "new --jobs") words=''; isValue=1 ;;
    "new --flavour") words='com dotnet java ws'; isValue=1 ;;
    "new -o"|"new --output") words=''; isValue=1 ;;
    "new --color") words='auto always never'; isValue=1 ;;
    "new --name") words=''; isValue=1 ;;
    "new --operations") words=''; isValue=1 ;;
    "new --schemas") words=''; isValue=1 ;;
    "convert --jobs") words=''; isValue=1 ;;
    "convert --flavour") words='com dotnet java ws'; isValue=1 ;;
    "convert -o"|"convert --output") words=''; isValue=1 ;;
    "convert --color") words='auto always never'; isValue=1 ;;
    "convert --schemas") words=''; isValue=1 ;;
    "import -o"|"import --output") words=''; isValue=1 ;;
    "import -I"|"import --include") words=''; isValue=1 ;;
    "import --format") words='auto fixed free variable'; isValue=1 ;;
    "import --dialect") words='ibm ibm64 natural gnucobol compact'; isValue=1 ;;
    "import --pointer-size") words='4 8'; isValue=1 ;;
    "import --encoding") words=''; isValue=1 ;;
    "import --explain") words=''; isValue=1 ;;
    "import --messages") words='text json sarif'; isValue=1 ;;
    "import --jobs") words=''; isValue=1 ;;
    "import --schemas") words=''; isValue=1 ;;
    "diff --service") words=''; isValue=1 ;;
    "diff --allow") words='document-added document-removed program-renamed property-added property-removed property-changed item-added item-removed item-renamed item-regrouped item-reordered item-moved size-changed category-changed picture-widened picture-narrowed picture-changed picture-respelled scale-changed sign-changed usage-changed justification-changed blank-when-zero-changed sync-changed table-made table-unmade table-longer table-shorter table-minimum-changed table-depending-changed redefinition-changed renames-changed condition-added condition-removed condition-renamed condition-values-added condition-values-removed condition-values-changed record-moved file-added file-removed file-renamed file-organization-changed file-access-changed entry-point-added entry-point-removed entry-point-renamed call-convention-changed entry-parameter-added entry-parameter-removed entry-parameters-reordered entry-parameter-passing-changed service-renamed flavour-changed program-changed dictionary-changed exit-program-changed operation-added operation-removed operation-renamed operation-rebound exit-points-changed style-changed use-changed namespace-changed form-changed transaction-changed return-parameter-changed attribute-changed parameter-added parameter-removed parameter-renamed parameter-reordered field-added field-removed field-renamed field-reordered direction-changed type-changed occurs-changed reference-changed mapping-added mapping-removed mapping-redirected hidden-parameter-added hidden-parameter-removed hidden-value-changed type-definition-added type-definition-removed type-definition-renamed header-added header-removed fault-added fault-removed mapping-lost mapping-renamed mapping-changed mapping-moved entry-point-lost entry-point-changed'; isValue=1 ;;
    "diff --allow-file") words=''; isValue=1 ;;
    "diff --format") words='text json'; isValue=1 ;;
    "diff --jobs") words=''; isValue=1 ;;
    "diff --schemas") words=''; isValue=1 ;;
    "report -o"|"report --output") words=''; isValue=1 ;;
    "report --source") words=''; isValue=1 ;;
    "report --generate") words='wsdl xsd jsonschema openapi java csharp idl markdown'; isValue=1 ;;
    "report --schemas") words=''; isValue=1 ;;
    "generate --jobs") words=''; isValue=1 ;;
    "generate -o"|"generate --output") words=''; isValue=1 ;;
    "generate --dictionary") words=''; isValue=1 ;;
    "generate --record") words=''; isValue=1 ;;
    "generate --names") words=''; isValue=1 ;;
    "generate --set") words=''; isValue=1 ;;
    "generate --color") words='auto always never'; isValue=1 ;;
    "generate --schemas") words=''; isValue=1 ;;
    "completion --schemas") words=''; isValue=1 ;;
    "manual -o"|"manual --output") words=''; isValue=1 ;;
    "manual --schemas") words=''; isValue=1 ;;
  esac
  if [[ -n $isValue ]]; then
    [[ -z $words ]] || mapfile -t COMPREPLY < <(compgen -W "$words" -- "$cur")
    return
  fi
  case $command in
    '') options='-h --help --schemas'; words='show validate lint new convert import diff report generate completion manual' ;;
    'show') options='-h --help -r --recursive --jobs --json --program -q --quiet --color --schemas'; words='' ;;
    'validate') options='-h --help -r --recursive --jobs --format -q --quiet --color --schemas'; words='' ;;
    'lint') options='-h --help -r --recursive --jobs --dictionary --rule --baseline --write-baseline --format -q --quiet --color --rules --schemas'; words='' ;;
    'new') options='-h --help -r --recursive --jobs --flavour -o --output -q --quiet --color --name --operations --schemas'; words='' ;;
    'convert') options='-h --help -r --recursive --jobs --flavour -o --output -q --quiet --color --schemas'; words='' ;;
    'import') options='-h --help -o --output -I --include --format --dialect --pointer-size --encoding --copybook --explain --messages -r --recursive --jobs -q --quiet --schemas'; words='' ;;
    'diff') options='-h --help --service --allow --allow-file --format --jobs -q --quiet --kinds --schemas'; words='' ;;
    'report') options='-h --help -r --recursive -o --output --source --generate --schemas'; words='' ;;
    'generate') options='-h --help -r --recursive --jobs -o --output --dictionary --record --names --set -v --verbose -q --quiet --color --kinds --schemas'; words='wsdl xsd jsonschema openapi java csharp idl markdown' ;;
    'completion') options='-h --help --schemas'; words='bash zsh' ;;
    'manual') options='-h --help -o --output --schemas'; words='' ;;
  esac
  if [[ $cur == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$options" -- "$cur")
  elif [[ -n $words && ( -z $command || $prev == "$command" ) ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$words" -- "$cur")
  fi
}
# Where nothing is offered, names of files are.
complete -o default -F _agentservices agentservices
