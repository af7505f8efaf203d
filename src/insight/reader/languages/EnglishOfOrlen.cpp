#include "insight/reader/languages/Tables.h"

namespace orlen::AskReader::english_words {

namespace {

constexpr WordRow kOfOrlen[] = {
    // Past clean-ups: "where is the stuff you removed", "where did my files go".
    {Sense::remove,
     "(if|when|before|after|unless) (you|orlen) (removed|deleted|cleaned|cleared|moved|erased)"},
    {Sense::freed,
     "(you|orlen|this app|this program|you've|you have|orlen has) (removed|deleted|erased|trashed|cleaned|"
     "cleared|moved|binned|tidied|cleaned up|cleaned out|cleared out|thrown away|threw away|thrown out|threw "
     "out|took away|taken away|got rid of|gotten rid of|tidied up|tidied away),"
     "(files|stuff|things|everything|items|those|ones) (that|which|) (i|we) (removed|deleted|trashed|cleaned|"
     "cleared|cleaned up)"},
    {Sense::undo,
     "where (did|have|has) (all|) (my|the|those|these|) (files|stuff|things|items|data|everything) (go|gone),"
     "(what|whatever) happened to (my|the|those|all my|) (files|stuff|things|items|data)"},
    {Sense::holds, "contain,contains,hold,holds"},
    {Sense::put, "put"},
    {Sense::override,
     "(ignore|disregard|forget) (all|any|your|the|my|these) (previous|prior|other|your|earlier|of your|) "
     "(instructions|rules|orders|prompts|guidelines|safety rules)"},
    {Sense::filler, "stupid,dumb,idiot,you moron,you stupid thing,you idiot"},
    {Sense::called, "(folders|directories|subfolders) (called|named|with the name|that are called|that are "
                    "named|are called|are named)"},
    {Sense::otherWork, "translate (the|this|a|these|that)"},
    {Sense::reads, "(do|does) (you|orlen) open,(files|folders) (you|orlen) (open|opens|read|reads|look at)"},
    {Sense::trust,
     "(do you|does orlen|can you|can orlen|will you) (ever|) (make|makes) (a mistake|mistakes|errors),(are "
     "you|is orlen) (ever|always) (wrong|right|correct),how accurate (are you|is orlen)"},
    {Sense::mean, "(change|override|edit|alter) (a|the|my|its|an item's|) (rating|ratings)"},
    {Sense::gone, "lose,loses,(did|have|do|) (i|we) (suddenly|just|) (lose|lost),(am|are) (i|we) (suddenly|) "
                  "losing,(did|has|have|) (gone missing|vanished|disappeared|vanish|disappear)"},
    {Sense::reads,
     "(do|does|will) (you|orlen|it|this app) (ever|) (look|peek|go|dig|snoop) (into|inside|through)"},
    {Sense::filler, "or is it something else,or something else,or is it other things"},
    {Sense::advise, "where (do|should|to|shall|can) (i|we|) (start|begin)"},
    {Sense::soFar, "(do you|does orlen) keep a (log|history|record) of"},
    {Sense::happens,
     "(ask|asks|asking|warn|warns) (me|) (before|first),without (warning|confirmation|confirming|notice)"},
    {Sense::privacy,
     "my (boss|employer|company) (see|know|read|find out),used to train,train (an|your|any) (ai|model),"
     "(anyone|anybody|someone|somebody|others|people) (else|) (see|read)"},
    {Sense::resident,
     "(schedule|plan|automate) (a|regular|my|the|automatic|) (scan|scans|clean-up|cleanup|cleanups)"},
    {Sense::ofOrlen,
     "(do|will|did) (you|orlen) (ever|actually|really|also|automatically|secretly|),(does|will) (orlen|this "
     "app|this program|this tool|this software|the app|the program) "
     "(ever|actually|really|also|automatically|secretly|),(are you|is orlen|is this app|is this program) "
     "(going to|gonna|planning to|about to|able to|)"},
    {Sense::canOrlen,
     "(can|could|would) (you|orlen) (ever|actually|really|also|automatically|secretly|please|),(can|could|"
     "would) (this app|this program|this tool|this software|the app|the program) (ever|actually|really|also|"
     "automatically|secretly|)"},
    {Sense::otherWork,
     "(make|makes|create|creates|keep|keeps|take|takes|do|does|doing|making|creating) (a backup|backups|back-"
     "ups|a back-up|a copy of my|security copies),back (up|it up|them up) (my|all|the|everything),backup my,"
     "(sync|synchronise|synchronize|compress|convert|resize|rename|organise|organize|repair|fix|print|play|"
     "crop|translate|burn|backup) my,update my (apps|programs|system)"},
    {Sense::order,
     "rm -rf,rm -fr,rm -r,(sudo|) rm,(delete|erase|wipe|remove|destroy|nuke) (everything|it all|all of it),"
     "(wipe|erase|format|nuke) (my|the|this) (whole|entire|) (disk|drive|computer|machine|hard drive)"},
    {Sense::rhythm,
     "how often should i,how often should one,how often should we,how often do i have to,how often "
     "do i need to,how often must i,how often do you recommend,how often is it good to,how "
     "often to,how regularly,how frequently,how often is it worth"},
    {Sense::rights,
     "need my password,want my password,ask for my password,asks for my "
     "password,root,sudo,admin,administrator,admin rights,administrator rights,root rights,superuser,as "
     "root,root access,sudo rights,root privileges,admin privileges,admin password,root password"},
    {Sense::inPeace, "alone,in peace"},
    {Sense::ownRemoval,
     "(uninstall|remove|delete|get rid of|deinstall|uninstalling|removing|deleting|install and remove) "
     "(orlen|yourself|this app|this program|this tool|this software),uninstall you,orlen (itself|) be "
     "(uninstalled|removed),(uninstall|remove|delete) orlen itself"},
    {Sense::resident,
     "(do you|does orlen|will orlen|does this app|does this program|does this tool) (run|work|stay|start) "
     "(in the background|all the time|automatically|when closed|permanently|by itself|on its own|at login|"
     "at boot|at startup|with the computer|as a service|a service|a daemon),(do you|does orlen|will "
     "orlen) (keep running|always run),(orlen|you) (doing|do) in the background,(is orlen|are you) "
     "(running in the background|always running|running all the time|active in the background|a "
     "background process|a background service|a daemon|running now|still running),this (app|program|tool) "
     "(run in the background|running in the background|always running)"},
    {Sense::deletes,
     "(will|would|does|do|could|can) (you|orlen|it|this program|this app|the program|the app) ever "
     "(delete|remove|erase),will (you|orlen|it|this program|this app|the program|the app) (delete|"
     "remove|erase),(does|do) (you|orlen|it|this program|this app|the program|the app) (delete|remove|"
     "erase),(are you|is orlen|is it|is this app) (going to|gonna) (delete|remove|erase)"},
    {Sense::deletes, "(will|does|do) (you|orlen|it|this program|this app|the program|the app) "
                     "(change|modify|edit|alter|rename|"
                     "overwrite|damage|destroy|touch)"},
    {Sense::deletes, "safe from (you|orlen),ever (be|get|) touched,ever touch"},
    {Sense::privacy,
     "(do|does|will) (you|orlen|it|this app|this program) (store|log|record|remember|sell|collect|share|save|"
     "keep a copy of|know|see|track|watch) (my|me|any|anything|what i|who i),sell my,sold to,sell"},
    {Sense::trust,
     "(are|is) (you|orlen|this app|this program) (safe|secure|legit|a scam|dangerous|reliable|honest|"
     "malware|spyware|a virus|trustworthy)"},
    {Sense::filler, "would you say,do you (believe|reckon),can you confirm"},
    {Sense::resident, "(do you|does orlen|does this app) (run|work|scan) (at night|overnight|while i sleep)"},
    {Sense::reads,
     "(look|looking|peek|snoop|poke|dig|go|nose) (inside|around in|into|through) my,(look|peek) inside the,"
     "(does|do|will|can) (it|you|orlen|this program|this app|the program|the app) (scan|read|look at|look "
     "into|look in|open|access|go through|see) my,(does|do|will|can) (it|you|orlen|this program|this app|"
     "the program|the app) (scan|read) private,(does|do|can) (it|you|orlen) (read|scan),(is it|is orlen|"
     "are you|is this app) (reading|scanning) my"},
};

} // namespace

std::span<const WordRow> ofOrlen()
{
    return kOfOrlen;
}

} // namespace orlen::AskReader::english_words
