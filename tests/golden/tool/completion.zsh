#compdef agentservices
# Completion of agentservices for zsh.
_agentservices() {
  local curcontext=$curcontext state line
  local -a commands
  commands=(
    'show:Print data dictionaries and services as trees'
    'validate:Say of every file whether it is good'
    'lint:Find what is broken in services'
    'new:Make first services for the programs of data dictionaries'
    'convert:Carry services over to another flavour'
    'import:Make data dictionaries from COBOL sources'
    'diff:Tell what changed between two dictionaries or services'
    'report:Make a site for looking at dictionaries and services'
    'generate:Make schemas and interfaces for callers of a service'
    'completion:Print what makes a shell complete calls of this tool'
    'manual:Write the manual pages of this tool'
  )
  _arguments -C \
    '(-h --help)'{-h,--help}'[Print help and end]' \
    '--schemas''[The directory of the schema files, vorcobol.xsd among them]:DIR:_files' \
    '--version[Print the versions and end]' \
    '1: :->command' '*:: :->arguments'
  case $state in
    command) _describe command commands ;;
    arguments)
      case $words[1] in
        show) _arguments \
            '(-h --help)'{-h,--help}'[Print help and end]' \
            '*:FILE:_files' \
            '(-r --recursive)'{-r,--recursive}'[Search folders for documents *.xml]' \
            '--jobs''[Work in so many processes; 1 unless told]:NUMBER:_files' \
            '--json''[Print everything the model answers, as JSON]' \
            '--program''[Show services with the data items of their programs, read from the dictionaries that they name]' \
            '(-q --quiet)'{-q,--quiet}'[Say only what is wrong]' \
            '--color''[Colours; auto unless told\: on a terminal, unless NO_COLOR is set]:TEXT:(auto always never)' \
            '--schemas''[The directory of the schema files, vorcobol.xsd among them]:DIR:_files' ;;
        validate) _arguments \
            '(-h --help)'{-h,--help}'[Print help and end]' \
            '*:FILE:_files' \
            '(-r --recursive)'{-r,--recursive}'[Search folders for documents *.xml]' \
            '--jobs''[Work in so many processes; 1 unless told]:NUMBER:_files' \
            '--format''[How findings are told; text unless told]:TEXT:(text json sarif)' \
            '(-q --quiet)'{-q,--quiet}'[Say only what is wrong]' \
            '--color''[Colours; auto unless told\: on a terminal, unless NO_COLOR is set]:TEXT:(auto always never)' \
            '--schemas''[The directory of the schema files, vorcobol.xsd among them]:DIR:_files' ;;
        lint) _arguments \
            '(-h --help)'{-h,--help}'[Print help and end]' \
            '*:SERVICE:_files' \
            '(-r --recursive)'{-r,--recursive}'[Search folders for documents *.xml]' \
            '--jobs''[Work in so many processes; 1 unless told]:NUMBER:_files' \
            '--dictionary''[The data dictionary of the program, in place of the one that the services name]:FILE:_files' \
            '*''--rule''[What is to become of a rule'\''s findings\: off, note, warning or error]:ID=WORD,...:_files' \
            '--baseline''[Do not tell the findings in this file]:FILE:_files' \
            '--write-baseline''[Write the findings to this file, for --baseline, and tell none]:FILE:_files' \
            '--format''[How findings are told; text unless told]:TEXT:(text json sarif)' \
            '(-q --quiet)'{-q,--quiet}'[Say only what is wrong]' \
            '--color''[Colours; auto unless told\: on a terminal, unless NO_COLOR is set]:TEXT:(auto always never)' \
            '--rules''[Print what is looked for, with the names of the rules, and look at nothing]' \
            '--schemas''[The directory of the schema files, vorcobol.xsd among them]:DIR:_files' ;;
        new) _arguments \
            '(-h --help)'{-h,--help}'[Print help and end]' \
            '*:DICTIONARY:_files' \
            '(-r --recursive)'{-r,--recursive}'[Search folders for documents *.xml]' \
            '--jobs''[Work in so many processes; 1 unless told]:NUMBER:_files' \
            '--flavour''[The service'\''s flavour]:TEXT:(com dotnet java ws)' \
            '(-o --output)'{-o,--output}'[The file to write, of several documents the folder; a file that is there is replaced when the new one is complete]:TEXT:_files' \
            '(-q --quiet)'{-q,--quiet}'[Say only what is wrong]' \
            '--color''[Colours; auto unless told\: on a terminal, unless NO_COLOR is set]:TEXT:(auto always never)' \
            '--name''[The service'\''s name, in place of the program'\''s]:TEXT:_files' \
            '*''--operations''[The entry points to make operations of, with commas between; all unless told]:ENTRY,...:_files' \
            '--schemas''[The directory of the schema files, vorcobol.xsd among them]:DIR:_files' ;;
        convert) _arguments \
            '(-h --help)'{-h,--help}'[Print help and end]' \
            '*:SERVICE:_files' \
            '(-r --recursive)'{-r,--recursive}'[Search folders for documents *.xml]' \
            '--jobs''[Work in so many processes; 1 unless told]:NUMBER:_files' \
            '--flavour''[The service'\''s flavour]:TEXT:(com dotnet java ws)' \
            '(-o --output)'{-o,--output}'[The file to write, of several documents the folder; a file that is there is replaced when the new one is complete]:TEXT:_files' \
            '(-q --quiet)'{-q,--quiet}'[Say only what is wrong]' \
            '--color''[Colours; auto unless told\: on a terminal, unless NO_COLOR is set]:TEXT:(auto always never)' \
            '--schemas''[The directory of the schema files, vorcobol.xsd among them]:DIR:_files' ;;
        import) _arguments \
            '(-h --help)'{-h,--help}'[Print help and end]' \
            '*:FILE:_files' \
            '(-o --output)'{-o,--output}'[The dictionary of one FILE, the folder of those of several; may be left out with --explain]:TEXT:_files' \
            '*'{-I,--include}'[Folders to look for copybooks in, before the source'\''s own]:DIR,...:_files' \
            '--format''[How the lines are laid out; auto unless told]:TEXT:(auto fixed free variable)' \
            '--dialect''[The compiler whose sizes and boundaries count; ibm unless told]:TEXT:(ibm ibm64 natural gnucobol compact)' \
            '--pointer-size''[The bytes of a POINTER; the dialect'\''s unless told]:TEXT:(4 8)' \
            '--encoding''[The code page of the sources; told from their text unless given]:TEXT:_files' \
            '--copybook''[Read the sources as copybooks, each a program of its own name]' \
            '--explain''[Print how size and place of an item came about]:ITEM:_files' \
            '--messages''[How findings are told; text unless told]:TEXT:(text json sarif)' \
            '(-r --recursive)'{-r,--recursive}'[As of other commands; folders are searched with all below them anyhow]' \
            '--jobs''[Work in so many processes; 1 unless told]:NUMBER:_files' \
            '(-q --quiet)'{-q,--quiet}'[Say only what is wrong]' \
            '--schemas''[The directory of the schema files, vorcobol.xsd among them]:DIR:_files' ;;
        diff) _arguments \
            '(-h --help)'{-h,--help}'[Print help and end]' \
            ':OLD:_files' \
            ':NEW:_files' \
            '*''--service''[Services for the program of OLD\: what becomes of their mappings]:FILE,...:_files' \
            '*''--allow''[Changes that are meant, at that place and below it; * for every kind]:KIND[\:PLACE],...:(document-added document-removed program-renamed property-added property-removed property-changed item-added item-removed item-renamed item-regrouped item-reordered item-moved size-changed category-changed picture-widened picture-narrowed picture-changed picture-respelled scale-changed sign-changed usage-changed justification-changed blank-when-zero-changed sync-changed table-made table-unmade table-longer table-shorter table-minimum-changed table-depending-changed redefinition-changed renames-changed condition-added condition-removed condition-renamed condition-values-added condition-values-removed condition-values-changed record-moved file-added file-removed file-renamed file-organization-changed file-access-changed entry-point-added entry-point-removed entry-point-renamed call-convention-changed entry-parameter-added entry-parameter-removed entry-parameters-reordered entry-parameter-passing-changed service-renamed flavour-changed program-changed dictionary-changed exit-program-changed operation-added operation-removed operation-renamed operation-rebound exit-points-changed style-changed use-changed namespace-changed form-changed transaction-changed return-parameter-changed attribute-changed parameter-added parameter-removed parameter-renamed parameter-reordered field-added field-removed field-renamed field-reordered direction-changed type-changed occurs-changed reference-changed mapping-added mapping-removed mapping-redirected hidden-parameter-added hidden-parameter-removed hidden-value-changed type-definition-added type-definition-removed type-definition-renamed header-added header-removed fault-added fault-removed mapping-lost mapping-renamed mapping-changed mapping-moved entry-point-lost entry-point-changed)' \
            '*''--allow-file''[The same from files, one a line; # begins a remark]:FILE,...:_files' \
            '--format''[How to print; text unless told]:TEXT:(text json)' \
            '--jobs''[Compare folders in so many processes; 1 unless told]:NUMBER:_files' \
            '(-q --quiet)'{-q,--quiet}'[Print nothing but what is wrong; the exit code tells]' \
            '--kinds''[Print the kinds of changes and why they break callers]' \
            '--schemas''[The directory of the schema files, vorcobol.xsd among them]:DIR:_files' ;;
        report) _arguments \
            '(-h --help)'{-h,--help}'[Print help and end]' \
            '*:FILE:_files' \
            '(-r --recursive)'{-r,--recursive}'[Search folders for documents *.xml]' \
            '(-o --output)'{-o,--output}'[The folder of the site; open its index.html in a browser]:TEXT:_files' \
            '*''--source''[Folders of sources to show, before those of the dictionaries]:DIR,...:_files' \
            '*''--generate''[What to make of the services, and link from their pages; the kinds are those of '\''generate'\'', and what a service'\''s flavour does not fit is left out]:KIND,...:(wsdl xsd jsonschema openapi java csharp idl markdown)' \
            '--schemas''[The directory of the schema files, vorcobol.xsd among them]:DIR:_files' ;;
        generate) _arguments \
            '(-h --help)'{-h,--help}'[Print help and end]' \
            ':KIND:(wsdl xsd jsonschema openapi java csharp idl markdown)' \
            '*:SERVICE:_files' \
            '(-r --recursive)'{-r,--recursive}'[Search folders for documents *.xml]' \
            '--jobs''[Work in so many processes; 1 unless told]:NUMBER:_files' \
            '(-o --output)'{-o,--output}'[The file to write, or the folder, in it one for each of several services; files that hold the same already are left alone]:TEXT:_files' \
            '--dictionary''[The data dictionary of the program, in place of the one that the service names]:FILE:_files' \
            '--record''[Of a dictionary\: the record to make something of; all unless told]:RECORD:_files' \
            '--names''[Names to use in place of those that are made\: KEY = NAME, one a line]:FILE:_files' \
            '*''--set''[Options of the kind]:OPTION=VALUE,...:_files' \
            '(-v --verbose)'{-v,--verbose}'[Tell of every name that the language wants changed]' \
            '(-q --quiet)'{-q,--quiet}'[Say only what is wrong]' \
            '--color''[Colours; auto unless told\: on a terminal, unless NO_COLOR is set]:TEXT:(auto always never)' \
            '--kinds''[Print the kinds with their options, and make nothing]' \
            '--schemas''[The directory of the schema files, vorcobol.xsd among them]:DIR:_files' ;;
        completion) _arguments \
            '(-h --help)'{-h,--help}'[Print help and end]' \
            ':SHELL:(bash zsh)' \
            '--schemas''[The directory of the schema files, vorcobol.xsd among them]:DIR:_files' ;;
        manual) _arguments \
            '(-h --help)'{-h,--help}'[Print help and end]' \
            '(-o --output)'{-o,--output}'[The folder to write them to]:TEXT:_files' \
            '--schemas''[The directory of the schema files, vorcobol.xsd among them]:DIR:_files' ;;
      esac ;;
  esac
}
_agentservices "$@"
